#import <OvAppKit/NSEvent+OvAppKit.h>

@implementation NSEvent (QEAppKitExtensions)

- (NSEvent *)copyKeyEventWithChars:(NSString *)chars {
  const NSEventType type = [self type];
  // Other events raise when they are asked for what a key has.
  if (type != NSKeyDown && type != NSKeyUp) return nil;
  NSString *copy = chars != nil ? [[chars copy] autorelease] : @"";
  return [[NSEvent keyEventWithType:type
                           location:[self locationInWindow]
                      modifierFlags:[self modifierFlags]
                          timestamp:[self timestamp]
                       windowNumber:[self windowNumber]
                            context:[self context]
                         characters:copy
        charactersIgnoringModifiers:copy
                          isARepeat:[self isARepeat]
                            keyCode:[self keyCode]] retain];
}

@end
