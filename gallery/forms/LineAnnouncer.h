// The delegate of a text view: it puts what the view announces into a log.
#import <AppKit/AppKit.h>

#include <functional>

@class EventLog;

@interface LineAnnouncer : NSObject {
  EventLog *_log;
  std::function<void()> _changed;
}
// Calls the function after each announcement and each change of the text.
- (id)initWithLog:(EventLog *)log changed:(std::function<void()>)changed;
@end
