#import <OvAppKit/NSAttributedString+OvAppKit.h>

@implementation NSAttributedString (HXAppKitExtensions)

- (id)initWithString:(NSString *)string font:(NSFont *)font {
  NSDictionary *attributes = font == nil ? @{} : @{NSFontAttributeName : font};
  return [self initWithString:string ?: @"" attributes:attributes];
}

- (id)initWithString:(NSString *)string
           alignment:(NSTextAlignment)alignment
       lineBreakMode:(NSLineBreakMode)lineBreakMode {
  NSMutableParagraphStyle *style =
      [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
  [style setAlignment:alignment];
  [style setLineBreakMode:lineBreakMode];
  return [self initWithString:string ?: @"" attributes:@{NSParagraphStyleAttributeName : style}];
}

@end
