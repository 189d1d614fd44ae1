#import <OvAppKit/OvVPFormatter.h>

/** The ten ASCII digits only. (OvNumberTextValidator, deliberately, takes the digits of every
    script.) init sets the valid set; an owner may set another. */
@interface OvVPNumberFormatter : OvVPFormatter
@end
