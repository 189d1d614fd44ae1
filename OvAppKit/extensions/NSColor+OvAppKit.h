#import <AppKit/AppKit.h>

/** The house colours: calibrated RGB, opaque. */
@interface NSColor (OrvaneColor)

/** What is selected: yellow, 0.96 0.89 0.22. */
+ (NSColor *)orvaneSelectedColor;
/** What others refer to: dark blue, 0.25 0.25 0.39. */
+ (NSColor *)orvaneReferenceColor;
/** Frames: light grey, 0.86. */
+ (NSColor *)orvaneFrameColor;
/** Behind everything: grey, 0.5. */
+ (NSColor *)orvaneBackgroundColor;

@end
