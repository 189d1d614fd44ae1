// The gallery's colours, fonts and distances, in one place.
#import <AppKit/AppKit.h>

// Distances in points.
inline constexpr CGFloat GallerySmallMargin = 8;
inline constexpr CGFloat GalleryMargin = 12;
inline constexpr CGFloat GalleryLargeMargin = 20;

// 0xRRGGBB, and how opaque it is.
NSColor *GalleryColor(unsigned rgb, CGFloat alpha = 1);

NSColor *GalleryWindowColor();
NSColor *GallerySidebarColor();
NSColor *GalleryPanelColor();
NSColor *GalleryLineColor();
NSColor *GalleryTextColor();
NSColor *GalleryQuietTextColor();
NSColor *GalleryAccentColor();
NSColor *GalleryWarningColor();

// Gives the platform's own controls and menus, which are dark grey, the gallery's colours.
// Only for this program.
void GalleryLightenPlatform();

NSFont *GalleryFont(CGFloat size);
NSFont *GalleryBoldFont(CGFloat size);

// A closed path round a rectangle with round corners.
NSBezierPath *GalleryRoundedPath(NSRect rect, CGFloat radius);

// One line of text, as it fits: centred vertically in the rectangle, and horizontally
// placed by the alignment.
void GalleryDrawText(NSString *text, NSRect rect, NSFont *font, NSColor *color,
                     NSTextAlignment alignment);

// A text that cannot be edited; its frame is as high as one line needs.
NSTextField *GalleryLabel(NSString *text, NSFont *font, NSColor *color);

// A flipped view that fills itself with a colour, and draws a line round itself if it has
// one.
@interface GalleryBox : NSView {
  NSColor *_fill;
  NSColor *_border;
}
+ (GalleryBox *)boxWithFill:(NSColor *)fill border:(NSColor *)border;
@end
