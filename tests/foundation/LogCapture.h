#ifndef OV_LOG_CAPTURE_H
#define OV_LOG_CAPTURE_H

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

/// Takes the lines of NSLog while it lives, without their time and process.
class LogCapture {
 public:
  LogCapture() : old_(_NSLog_printf_handler) {
    lines().clear();
    _NSLog_printf_handler = take;
  }
  ~LogCapture() { _NSLog_printf_handler = old_; }
  LogCapture(const LogCapture &) = delete;

  static std::vector<std::string> &lines() {
    static std::vector<std::string> lines;
    return lines;
  }

 private:
  static void take(NSString *message) {
    std::string line = [message UTF8String];
    if (const auto end = line.find("] "); end != std::string::npos) line.erase(0, end + 2);
    while (!line.empty() && line.back() == '\n') line.pop_back();
    lines().push_back(line);
  }

  NSLog_printf_handler *old_;
};

#endif
