#import <OvAppKit/NSAttributedString+OvAppKit.h>
#import <OvAppKit/NSMenuItem+OvAppKit.h>

#import "support/SystemFont.h"

@implementation NSMenuItem (HXAppKitExtensions)

- (id)initWithAttributedTitle:(NSAttributedString *)title
                       action:(SEL)action
                keyEquivalent:(NSString *)keyEquivalent {
  self = [self init];
  if (self != nil) {
    [self setAttributedTitle:title];
    [self setAction:action];
    [self setKeyEquivalent:keyEquivalent ?: @""];
  }
  return self;
}

- (id)initWithTitle:(NSString *)title
               font:(NSFont *)font
             action:(SEL)action
      keyEquivalent:(NSString *)keyEquivalent {
  NSAttributedString *attributed = [[[NSAttributedString alloc] initWithString:title
                                                                          font:font] autorelease];
  return [self initWithAttributedTitle:attributed action:action keyEquivalent:keyEquivalent];
}

- (id)initWithTitle:(NSString *)title
        controlSize:(NSControlSize)controlSize
             action:(SEL)action
      keyEquivalent:(NSString *)keyEquivalent {
  NSAttributedString *attributed =
      [[[NSAttributedString alloc] initWithString:title
                                             font:ov::systemFont(controlSize)] autorelease];
  return [self initWithAttributedTitle:attributed action:action keyEquivalent:keyEquivalent];
}

- (void)setFont:(NSFont *)font {
  [self setAttributedTitle:[[[NSAttributedString alloc] initWithString:[self title]
                                                                  font:font] autorelease]];
}

- (void)setControlSize:(NSControlSize)controlSize {
  [self setFont:ov::systemFont(controlSize)];
}

@end
