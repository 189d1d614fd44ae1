// What a file may be called, and how a file gets a name without taking one from another.
#pragma once

#include <string>
#include <string_view>

namespace gallery {

// Why a text cannot be a file's name, as a sentence; empty when it can.
std::string whyNotAFileName(std::string_view name);

// "tree.png" -> "tree copy.png", "tree copy 2.png", … for number 1, 2, …; number 0 is the
// name itself. The stem is shortened, at a whole character, where the result would be too
// long for a file system.
std::string nameOfCopy(std::string_view name, int number);

// The extension with its dot, or empty. A leading dot is not an extension's.
std::string_view extensionOf(std::string_view name);

// Renames, and never replaces an existing file: 0, or the error number, EEXIST when the
// name is taken.
int renameWithoutReplacing(const std::string &from, const std::string &to);

}  // namespace gallery
