// How OvTextView gains and loses the keyboard, and what it makes of keys and of pasting.

#import <OvAppKit/NSEvent+OvAppKit.h>
#import <OvAppKit/OvTextViewLines.h>

#import "text/OvTextView+Private.h"
#import "text/StringText.h"

@interface OvTextView (OvKeys)
- (void)_ovReturn:(NSEvent *)event;
- (void)_ovLeaveWithTab:(NSEvent *)event;
@end

@implementation OvTextView (OvTextViewEvents)

- (BOOL)becomeFirstResponder {
  if (![super becomeFirstResponder]) return NO;
  if (_state->announcedFirstResponder) return YES;
  _state->announcedFirstResponder = true;
  [self _ovPost:OvTextViewBecomeFirstResponderNotification userInfo:nil];
  return YES;
}

- (BOOL)resignFirstResponder {
  if (![super resignFirstResponder]) return NO;
  _state->announcedFirstResponder = false;
  NSString *string = [self string];
  const uint32_t location = static_cast<uint32_t>([self selectedRange].location);
  const uint32_t index = OvTextViewGetLineIndexFromLocation(string, location);
  [self _ovPost:OvTextViewResignFirstResponderNotification
           line:OvTextViewGetIndexedLineString(string, index)];
  return YES;
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  // A window that dies does not ask its first responder to resign.
  if ([[self window] firstResponder] != self) _state->announcedFirstResponder = false;
}

- (void)paste:(id)sender {
  NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
  NSString *type = [pasteboard availableTypeFromArray:@[ NSStringPboardType ]];
  NSString *string = type != nil ? [pasteboard stringForType:type] : nil;
  if (string != nil) {
    NSMutableArray *lines = [NSMutableArray array];
    ov::forEachFilledLine(ov::StringText(string), [&](ov::LineExtent line) {
      [lines addObject:ov::lineString(string, line)];
    });
    [self _ovPost:OvTextViewWillPasteStringNotification
         userInfo:[lines count] > 0 ? @{@"OvStrings" : lines} : nil];
  }
  [super paste:sender];
}

- (void)keyDown:(NSEvent *)event {
  NSString *characters = [event characters];
  const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
  const BOOL composing = [self hasMarkedText];
  if ((key == NSCarriageReturnCharacter || key == NSEnterCharacter) && !composing &&
      [self isEditable]) {
    [self _ovReturn:event];
  } else if ((key == NSTabCharacter || key == NSBackTabCharacter) && !composing &&
             _tabToResignFirstResponder) {
    [self _ovLeaveWithTab:event];
  } else {
    [super keyDown:event];
  }
}

- (void)_ovReturn:(NSEvent *)event {
  [[self retain] autorelease];  // whoever hears of the change may let go of the view
  const uint64_t changes = _state->changes;
  const NSUInteger location = [self selectedRange].location;
  NSEvent *lineFeed = [event copyKeyEventWithChars:@"\n"];
  [super keyDown:lineFeed];
  [lineFeed release];
  if (_state->changes == changes) return;  // refused: no line was ended
  // The line feed stands where the selection began, unless the validator took it away again.
  NSString *string = [self string];
  NSString *line = nil;
  if (location < [string length] && [string characterAtIndex:location] == NSNewlineCharacter) {
    line = OvTextViewGetLineStringFromReturnCode(string, static_cast<uint32_t>(location));
  }
  [self _ovPost:OvTextViewDidReturnNotification line:line];
}

// A field editor's way to handle Tab ends the editing here and leaves the focus where it is,
// so the focus is moved as the field editor's owner would do it. Becoming a field editor in
// earnest would also change how the view lays its text out.
- (void)_ovLeaveWithTab:(NSEvent *)event {
  [[self retain] autorelease];
  _state->leavingByTab = true;
  const BOOL backward = [[event characters] characterAtIndex:0] == NSBackTabCharacter ||
                        ([event modifierFlags] & NSShiftKeyMask) != 0;
  @try {
    if (backward) {
      [[self window] selectKeyViewPrecedingView:self];
    } else {
      [[self window] selectKeyViewFollowingView:self];
    }
  } @finally {
    _state->leavingByTab = false;
  }
}

- (BOOL)isFieldEditor {
  return [super isFieldEditor] || (_state != nullptr && _state->leavingByTab);
}

@end
