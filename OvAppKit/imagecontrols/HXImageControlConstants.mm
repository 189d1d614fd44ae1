#import <OvAppKit/HXImageControlConstants.h>

NSString *const HXImageControlDefaultImageKey = @"HXImageControlDefaultImage";
NSString *const HXImageControlAlternateImageKey = @"HXImageControlAlternateImage";
NSString *const HXImageControlMouseOverImageKey = @"HXImageControlMouseOverImage";
NSString *const HXImageControlDisabledImageKey = @"HXImageControlDisabledImage";

NSString *const HXImageControlDefaultImageSuffix = @"_default";
NSString *const HXImageControlAlternateImageSuffix = @"_alternate";
NSString *const HXImageControlMouseOverImageSuffix = @"_mouseover";
NSString *const HXImageControlDisabledImageSuffix = @"_disabled";
