#import "Recorders.h"

#import <GNUstepGUI/GSDisplayServer.h>
#import <objc/runtime.h>

@interface OvTestObserver : NSObject {
 @public
  int count;
  int taken;
  NSNotification *last;
}
@end

@implementation OvTestObserver
- (void)noticed:(NSNotification *)notification {
  count++;
  [last release];
  last = [notification retain];
}
- (void)dealloc {
  [last release];
  [super dealloc];
}
@end

static int deathCount = 0;

@implementation OvTestDeathCounter
+ (int)deaths {
  return deathCount;
}
- (void)dealloc {
  deathCount++;
  [super dealloc];
}
@end

typedef void LogHandler(NSString *message);
extern "C" LogHandler *_NSLog_printf_handler;

namespace ov::test {

namespace {

// Through an untyped pointer: IMP's own type fits no method.
template <typename Function>
IMP asMethod(Function *function) {
  return reinterpret_cast<IMP>(reinterpret_cast<void *>(function));
}

std::vector<std::string> *logLines = nullptr;
LogHandler *formerLogHandler = nullptr;
int beeps = 0;
void (*formerRaise)(id, SEL) = nullptr;
std::string exceptionReason;

// "2026-01-01 10:00:00.000 name[pid:tid] text" -> "text"
std::string withoutPrefix(NSString *message) {
  NSRange end = [message rangeOfString:@"] "];
  NSString *text = end.length ? [message substringFromIndex:NSMaxRange(end)] : message;
  return [[text stringByTrimmingCharactersInSet:[NSCharacterSet newlineCharacterSet]] UTF8String];
}

void collectLog(NSString *message) { logLines->push_back(withoutPrefix(message)); }

void countBeep(id, SEL) { beeps++; }

void rememberRaise(NSException *self, SEL selector) {
  exceptionReason = std::string([[self name] UTF8String]) + ": " + [[self reason] UTF8String];
  formerRaise(self, selector);
}

struct {
  int count;
  NSMenu *menu;
  NSView *view;
  NSFont *font;
  NSEvent *event;
} menus;
IMP formerPopUp = nullptr;

Method popUpMethod() {
  return class_getClassMethod([NSMenu class], @selector(popUpContextMenu:
                                                               withEvent:forView:withFont:));
}

template <typename T>
void keep(T **variable, T *object) {
  [*variable release];
  *variable = [object retain];
}

void recordPopUp(id, SEL, NSMenu *menu, NSEvent *event, NSView *view, NSFont *font) {
  menus.count++;
  keep(&menus.menu, menu);
  keep(&menus.view, view);
  keep(&menus.font, font);
  keep(&menus.event, event);
}

}  // namespace

NotificationCount::NotificationCount(NSString *name, id object)
    : observer_([[OvTestObserver alloc] init]) {
  [[NSNotificationCenter defaultCenter] addObserver:observer_
                                           selector:@selector(noticed:)
                                               name:name
                                             object:object];
}

NotificationCount::~NotificationCount() {
  [[NSNotificationCenter defaultCenter] removeObserver:observer_];
  [observer_ release];
}

int NotificationCount::count() const { return observer_->count; }

int NotificationCount::take() {
  int fresh = observer_->count - observer_->taken;
  observer_->taken = observer_->count;
  return fresh;
}

NSDictionary *NotificationCount::lastUserInfo() const { return [observer_->last userInfo]; }
id NotificationCount::lastObject() const { return [observer_->last object]; }

LogCapture::LogCapture() {
  formerLogHandler = _NSLog_printf_handler;
  logLines = &lines_;
  _NSLog_printf_handler = collectLog;
}

LogCapture::~LogCapture() {
  _NSLog_printf_handler = formerLogHandler;
  logLines = nullptr;
}

int beepCount() { return beeps; }

MenuInterceptor::MenuInterceptor() {
  menus.count = 0;
  formerPopUp = method_setImplementation(popUpMethod(), asMethod(recordPopUp));
}

MenuInterceptor::~MenuInterceptor() { method_setImplementation(popUpMethod(), formerPopUp); }

int MenuInterceptor::count() const { return menus.count; }
NSMenu *MenuInterceptor::menu() const { return menus.menu; }
NSView *MenuInterceptor::view() const { return menus.view; }
NSFont *MenuInterceptor::font() const { return menus.font; }
NSEvent *MenuInterceptor::event() const { return menus.event; }
NSPoint MenuInterceptor::location() const { return [menus.event locationInWindow]; }

const std::string &lastExceptionReason() { return exceptionReason; }

void installRecorders() {
  // The beep is an inline function that ends in the display server's method.
  method_setImplementation(class_getInstanceMethod([GSCurrentServer() class], @selector(beep)),
                           asMethod(countBeep));
  Method raise = class_getInstanceMethod([NSException class], @selector(raise));
  formerRaise = reinterpret_cast<void (*)(id, SEL)>(
      reinterpret_cast<void *>(method_setImplementation(raise, asMethod(rememberRaise))));
}

}  // namespace ov::test
