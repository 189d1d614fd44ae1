#import <AppKit/AppKit.h>

/** Asks a delegate, by kind of key, whether a key-down event should be processed, so that a
    host can forbid a view some of its keys.

      - (void)keyDown:(NSEvent *)event {
        if ([_intercepter shouldProcessKeyDown:self event:event]) [super keyDown:event];
      }

    The delegate answers for the kinds that it cares about:

      - (BOOL)shouldProcessUpArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
        return NO;
      } */
@interface HXKeyEventIntercepter : NSObject {
  NSObject *_delegate;
}

/** No delegate. */
- (id)init;
/** The delegate is not retained. */
- (id)initWithDelegate:(id)delegate;

/** The object that is asked; not retained. Default nil: every key is processed. */
- (void)setDelegate:(id)delegate;
- (id)delegate;

/** Whether an object, the receiver of the key, should process a key-down event. The key is
    the first UTF-16 unit of the event's charactersIgnoringModifiers.

    The keys that have a method of their own are decided by that method alone; YES when the
    delegate lacks it. Any other key goes to shouldProcessWhitespaceKeyDown:event: when it is
    white space and the delegate has that method, else, when it is a letter, digit or
    punctuation, to shouldProcessAlphaNumericOrPunctuationKeyDown:event:. What no method
    decides is processed: YES.

    An event without characters, one that is not a key event, and nil are no key at all: YES,
    and nobody is asked. */
- (BOOL)shouldProcessKeyDown:(id)receiver event:(NSEvent *)event;

@end

/** What the delegate may implement. `receiver` is the object that received the key. */
@interface NSObject (HXKeyEventIntercepterDelegate)
- (BOOL)shouldProcessUpArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessDownArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessLeftArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessRightArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
/** "Arrow" in this name and the next three is part of the interface, although these are no
    arrow keys. */
- (BOOL)shouldProcessHomeArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessEndArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessPageUpArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessPageDownArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event;
/** U+0003, on the keypad. */
- (BOOL)shouldProcessEnterKeyDown:(id)receiver event:(NSEvent *)event;
/** U+000D. */
- (BOOL)shouldProcessReturnKeyDown:(id)receiver event:(NSEvent *)event;
/** U+007F, backwards. */
- (BOOL)shouldProcessDeleteKeyDown:(id)receiver event:(NSEvent *)event;
/** Space, tab and the like. */
- (BOOL)shouldProcessWhitespaceKeyDown:(id)receiver event:(NSEvent *)event;
- (BOOL)shouldProcessAlphaNumericOrPunctuationKeyDown:(id)receiver event:(NSEvent *)event;
@end
