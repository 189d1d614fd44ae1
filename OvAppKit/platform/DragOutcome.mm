#import "platform/DragOutcome.h"

#import <GNUstepGUI/GSDisplayServer.h>
#import <GNUstepGUI/GSDragView.h>

#import "support/Methods.h"

namespace {

// What became of the last drop in a window of this program.
enum class Drop { unknown, refused, performed } lastDrop = Drop::unknown;

// Who is asked to perform the drop that is being delivered, and its own way to do it.
id performer = nil;
IMP ownPerform = nullptr;

BOOL performDrop(id self, SEL selector, id<NSDraggingInfo> info) {
  const BOOL answer =
      ov::asFunction<BOOL(id, SEL, id<NSDraggingInfo>)>(ownPerform)(self, selector, info);
  if (self == performer) lastDrop = answer ? Drop::performed : Drop::refused;
  return answer;
}

// As the window finds it: the view over which the pointer was last; in place of the whole
// window its delegate, or the window itself.
id findPerformer(NSWindow *window, SEL selector) {
  id view = [window valueForKey:@"lastDragView"];
  if (view != [window valueForKey:@"wv"]) return view;
  id delegate = [window delegate];
  return [delegate respondsToSelector:selector] ? delegate : window;
}

using SendLocalEvent = void(id, SEL, GSAppKitSubtype, NSDragOperation, NSPoint, NSTimeInterval,
                            NSWindow *);
SendLocalEvent *sendLocalEvent = nullptr;

// The window keeps the answer to the drop to itself, so it is overheard where it is given.
void overhear(id self, SEL selector, GSAppKitSubtype subtype, NSDragOperation action, NSPoint point,
              NSTimeInterval time, NSWindow *window) {
  const bool drop = subtype == GSAppKitDraggingDrop;
  // One drop at a time: that of a drag which another drop began is believed.
  if (drop) lastDrop = ownPerform == nullptr ? Drop::refused : Drop::unknown;
  if (!drop || ownPerform != nullptr) {
    sendLocalEvent(self, selector, subtype, action, point, time, window);
    return;
  }
  const SEL perform = @selector(performDragOperation:);
  performer = [findPerformer(window, perform) retain];
  Method method = class_getInstanceMethod(object_getClass(performer), perform);
  if (method == nullptr) {
    // One that forwards the message cannot be overheard; it is believed.
    if ([performer respondsToSelector:perform]) lastDrop = Drop::unknown;
  } else {
    ownPerform = method_setImplementation(method, ov::asMethod(performDrop));
  }
  @try {
    sendLocalEvent(self, selector, subtype, action, point, time, window);
  } @finally {
    if (method != nullptr) method_setImplementation(method, ownPerform);
    ownPerform = nullptr;
    [performer release];
    performer = nil;
  }
}

bool watch() {
  Method method = class_getInstanceMethod(
      [GSDragView class], @selector(_sendLocalEvent:action:position:timestamp:toWindow:));
  if (method == nullptr) return false;
  sendLocalEvent =
      ov::asFunction<SendLocalEvent>(method_setImplementation(method, ov::asMethod(overhear)));
  return true;
}

}  // namespace

@interface GSDragView (OvDragOutcome)
- (NSDragOperation)_ovOutcome:(NSDragOperation)operation ofDragFrom:(id)source;
@end

@implementation GSDragView (OvDragOutcome)

- (NSDragOperation)_ovOutcome:(NSDragOperation)operation ofDragFrom:(id)source {
  if (!isDragging || dragSource != source) return operation;
  if (targetWindowRef == 0) return NSDragOperationNone;
  if (destExternal) return operation & ~static_cast<NSDragOperation>(NSDragOperationDelete);
  if (lastDrop == Drop::refused) return NSDragOperationNone;
  return operation;
}

@end

void OvWatchDrags() {
  static const bool watched = watch();
  (void)watched;
}

NSDragOperation OvOutcomeOfDrag(id source, NSDragOperation operation) {
  if (operation == NSDragOperationNone) return operation;
  id view = [GSCurrentServer() dragInfo];
  return [view isKindOfClass:[GSDragView class]] ? [view _ovOutcome:operation ofDragFrom:source]
                                                 : operation;
}
