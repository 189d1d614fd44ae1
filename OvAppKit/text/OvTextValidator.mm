#import <OvAppKit/OvTextValidator.h>

#import "support/Retained.h"
#import "text/StringPart.h"

@implementation OvTextValidator

+ (id)textValidator {
  OvTextValidator *validator = [[[[self class] alloc] init] autorelease];
  [validator setMaxLength:0];
  [validator setCountAsByte:NO];
  [validator setMoveNextKeyView:NO];
  [validator setAllowToInputOverLength:NO];
  return validator;
}

- (void)dealloc {
  [_defaultTextColor release];
  [_altTextColor release];
  [super dealloc];
}

- (void)setMaxLength:(uint32_t)length {
  _maxLength = length;
}

- (uint32_t)maxLength {
  return _maxLength;
}

- (void)setCountAsByte:(BOOL)flag {
  _countAsByte = flag;
}

- (BOOL)countAsByte {
  return _countAsByte;
}

- (void)setMoveNextKeyView:(BOOL)flag {
  _moveNextKeyView = flag;
}

- (BOOL)moveNextKeyView {
  return _moveNextKeyView;
}

- (void)setAllowToInputOverLength:(BOOL)flag {
  _allowToInputOverLength = flag;
}

- (BOOL)allowToInputOverLength {
  return _allowToInputOverLength;
}

- (void)setDefaultTextColor:(NSColor *)color {
  OvReplaceRetained(&_defaultTextColor, color);
}

- (NSColor *)defaultTextColor {
  return _defaultTextColor;
}

- (void)setAltTextColor:(NSColor *)color {
  OvReplaceRetained(&_altTextColor, color);
}

- (NSColor *)altTextColor {
  return _altTextColor;
}

@end

@implementation OvTextValidator (OvTextValidation)

- (int32_t)validateString:(NSString *)string {
  const uint32_t limit = [self maxLength];
  if (limit == 0) return OvTextIsValid;
  uint32_t count = static_cast<uint32_t>([string length]);
  if ([self countAsByte]) count <<= 1;
  if (count == limit) return OvTextIsFull;
  return count > limit ? OvTextIsTooLong : OvTextIsValid;
}

- (BOOL)validString:(NSString *)string {
  return [self validateString:string] >= 0;
}

- (NSString *)validStringFromInvalidString:(NSString *)string {
  const NSUInteger fitting = [self _maxLengthForSubstring];
  return [string length] <= fitting ? string : ov::stringHead(string, fitting);
}

- (uint32_t)_maxLengthForSubstring {
  const uint32_t limit = [self maxLength];
  return [self countAsByte] ? limit >> 1 : limit;
}

@end
