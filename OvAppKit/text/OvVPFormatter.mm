#import <OvAppKit/OvVPFormatter.h>
#import <OvFoundation/NSString+OvFoundation.h>

#import "support/Retained.h"
#import "text/RefusedEdit.h"
#import "text/StringPart.h"

NSString *const OvVPFormatterBufferIsFull = @"OvVPFormatterBufferIsFull";

@implementation OvVPFormatter

// An archive holds nothing of a formatter, and a decoded number formatter must still take
// digits only.
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}

// Made by init and not by the inherited method, which says nothing of the attributes: they
// could be missing in its copy, or be shared without being retained.
- (id)copyWithZone:(NSZone *)zone {
  OvVPFormatter *copy = [[[self class] allocWithZone:zone] init];
  if (copy != nil) {
    OvReplaceRetained(&copy->_validCharacterSet, _validCharacterSet);
    OvReplaceRetained(&copy->_invalidCharacterSet, _invalidCharacterSet);
    OvReplaceRetained(&copy->_minimum, _minimum);
    OvReplaceRetained(&copy->_maximum, _maximum);
    copy->_countAsByte = _countAsByte;
  }
  return copy;
}

- (void)dealloc {
  [_validCharacterSet release];
  [_invalidCharacterSet release];
  [_minimum release];
  [_maximum release];
  [super dealloc];
}

- (void)setValidCharacterSet:(NSCharacterSet *)set {
  if (set == _validCharacterSet) return;
  OvReplaceRetained(&_validCharacterSet, set);
  [self setInvalidCharacterSet:[set invertedSet]];
}

- (NSCharacterSet *)validCharacterSet {
  return _validCharacterSet;
}

- (void)setInvalidCharacterSet:(NSCharacterSet *)set {
  OvReplaceRetained(&_invalidCharacterSet, set);
}

- (NSCharacterSet *)invalidCharacterSet {
  return _invalidCharacterSet;
}

- (void)setMinimum:(NSDecimalNumber *)minimum {
  OvReplaceRetained(&_minimum, minimum);
}

- (NSDecimalNumber *)minimum {
  return _minimum;
}

- (void)setMaximum:(NSDecimalNumber *)maximum {
  OvReplaceRetained(&_maximum, maximum);
}

- (NSDecimalNumber *)maximum {
  return _maximum;
}

- (void)setCountAsByte:(BOOL)flag {
  _countAsByte = flag;
}

- (BOOL)countAsByte {
  return _countAsByte;
}

- (BOOL)isValidObject:(id)object {
  (void)object;
  return YES;
}

- (NSString *)stringForObjectValue:(id)object {
  return [object isKindOfClass:[NSString class]] ? object : nil;
}

- (BOOL)getObjectValue:(id *)object
             forString:(NSString *)string
      errorDescription:(NSString **)error {
  (void)error;
  // The platform makes no string with nil.
  if (object != nullptr) *object = [NSString stringWithString:string != nil ? string : @""];
  return YES;
}

- (BOOL)isPartialStringValid:(NSString **)proposed
       proposedSelectedRange:(NSRange *)proposedRange
              originalString:(NSString *)original
       originalSelectedRange:(NSRange)originalRange
            errorDescription:(NSString **)error {
  (void)original;
  (void)error;
  NSString *string = proposed != nullptr ? *proposed : nil;
  bool changed = false;
  if ([string containsCharacterInSet:_invalidCharacterSet]) {
    string = [string stringByDeletingAllOccurrencesOfCharactersInSet:_invalidCharacterSet];
    changed = true;
  }

  const double limit = [_maximum doubleValue] * (_countAsByte ? 0.5 : 1);
  // Neither for what is no number.
  if (limit > 0) {
    const double length = [string length];
    if (length == limit) {
      [[NSNotificationCenter defaultCenter] postNotificationName:OvVPFormatterBufferIsFull
                                                          object:self];
    } else if (length > limit) {
      string = ov::stringHead(string, static_cast<NSUInteger>(limit));
      changed = true;
    }
  }
  return !changed || ov::refuseEdit(proposed, proposedRange, string, originalRange.location);
}

@end
