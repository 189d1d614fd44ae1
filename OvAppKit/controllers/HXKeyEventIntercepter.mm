#import <OvAppKit/HXKeyEventIntercepter.h>

#include <bit>

// The question about a key that has one of its own; NULL for the other keys.
static SEL QuestionAboutKey(unichar key) {
  switch (key) {
    case NSUpArrowFunctionKey:
      return @selector(shouldProcessUpArrowFunctionKeyDown:event:);
    case NSDownArrowFunctionKey:
      return @selector(shouldProcessDownArrowFunctionKeyDown:event:);
    case NSLeftArrowFunctionKey:
      return @selector(shouldProcessLeftArrowFunctionKeyDown:event:);
    case NSRightArrowFunctionKey:
      return @selector(shouldProcessRightArrowFunctionKeyDown:event:);
    case NSHomeFunctionKey:
      return @selector(shouldProcessHomeArrowFunctionKeyDown:event:);
    case NSEndFunctionKey:
      return @selector(shouldProcessEndArrowFunctionKeyDown:event:);
    case NSPageUpFunctionKey:
      return @selector(shouldProcessPageUpArrowFunctionKeyDown:event:);
    case NSPageDownFunctionKey:
      return @selector(shouldProcessPageDownArrowFunctionKeyDown:event:);
    case NSEnterCharacter:
      return @selector(shouldProcessEnterKeyDown:event:);
    case NSCarriageReturnCharacter:
      return @selector(shouldProcessReturnKeyDown:event:);
    case NSDeleteCharacter:
      return @selector(shouldProcessDeleteKeyDown:event:);
    default:
      return NULL;
  }
}

// The platform raises when an event of another type is asked for its characters.
static NSString *CharactersOfKey(NSEvent *event) {
  if (event == nil) return nil;
  const NSEventType type = [event type];
  return type == NSKeyDown || type == NSKeyUp ? [event charactersIgnoringModifiers] : nil;
}

@implementation HXKeyEventIntercepter

- (id)init {
  return [self initWithDelegate:nil];
}

- (id)initWithDelegate:(id)delegate {
  self = [super init];
  if (self != nil) _delegate = delegate;
  return self;
}

- (void)setDelegate:(id)delegate {
  _delegate = delegate;
}

- (id)delegate {
  return _delegate;
}

- (BOOL)_ask:(SEL)question receiver:(id)receiver event:(NSEvent *)event {
  using Answer = BOOL (*)(id, SEL, id, NSEvent *);
  return std::bit_cast<Answer>([_delegate methodForSelector:question])(_delegate, question,
                                                                       receiver, event);
}

- (BOOL)shouldProcessKeyDown:(id)receiver event:(NSEvent *)event {
  NSString *characters = CharactersOfKey(event);
  if ([characters length] == 0) return YES;
  const unichar key = [characters characterAtIndex:0];

  if (SEL question = QuestionAboutKey(key)) {
    if (![_delegate respondsToSelector:question]) return YES;
    return [self _ask:question receiver:receiver event:event];
  }

  SEL question = @selector(shouldProcessWhitespaceKeyDown:event:);
  if ([_delegate respondsToSelector:question] &&
      [[NSCharacterSet whitespaceCharacterSet] characterIsMember:key]) {
    return [self _ask:question receiver:receiver event:event];
  }

  question = @selector(shouldProcessAlphaNumericOrPunctuationKeyDown:event:);
  if (![_delegate respondsToSelector:question]) return YES;
  if ([[NSCharacterSet alphanumericCharacterSet] characterIsMember:key] ||
      [[NSCharacterSet punctuationCharacterSet] characterIsMember:key]) {
    return [self _ask:question receiver:receiver event:event];
  }
  return YES;
}

@end
