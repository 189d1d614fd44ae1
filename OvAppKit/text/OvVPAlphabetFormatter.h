#import <OvAppKit/OvVPFormatter.h>

/** The letters A to Z and a to z only. init sets the valid set; an owner may set another. */
@interface OvVPAlphabetFormatter : OvVPFormatter
@end
