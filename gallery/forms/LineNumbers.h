// The numbers of a text view's lines, in a column beside it that follows its scrolling. Only
// the lines that can be seen are looked at.
#import <AppKit/AppKit.h>

@interface LineNumbers : NSView {
  NSTextView *_text;
  NSUInteger _shownFirst;
  NSUInteger _shownLast;
}
+ (CGFloat)width;
// The text view must be in its scroll view.
- (id)initWithTextView:(NSTextView *)text;
- (void)update;
// The numbers drawn last, counted from 1; 0 before.
- (NSUInteger)firstNumber;
- (NSUInteger)lastNumber;
@end
