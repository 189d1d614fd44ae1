// A control that is bound to a value which goes away shows nothing.
//
// The platform tells a binding of a missing value by NSNull, as observation does, and then
// hands that to the control: a text field shows "<null>", and stores these characters as the
// value when the user leaves it.
// Removable once the platform's bindings take NSNull for nil.

#pragma once

namespace ov {

// For all bindings of the program; further calls do nothing.
void showNothingForNull();

}  // namespace ov
