// The few controls of the settings, drawn flat and light.
#import <AppKit/AppKit.h>

@interface GalleryPopUpCell : NSPopUpButtonCell
@end

@interface GalleryPopUp : NSPopUpButton
@end

@interface GalleryCheckBoxCell : NSButtonCell
@end

@interface GalleryCheckBox : NSButton
@end

@interface GalleryButtonCell : NSButtonCell
@end

// A push button with its title.
@interface GalleryButton : NSButton
@end

@interface GallerySliderCell : NSSliderCell
@end

@interface GallerySlider : NSSlider
@end

// A thin bar that is filled from the left as far as something has got, and cannot be seen
// when it is done.
@interface GalleryProgressBar : NSView {
  double _progress;
}
// From 0 to 1.
- (void)setProgress:(double)progress;
@end

// Buttonless scrollers: a rounded knob in a plain track.
@interface GalleryScroller : NSScroller
@end

// A scroll view with a vertical and a horizontal GalleryScroller, each shown when there is
// something to scroll. Its background is the window's.
@interface GalleryScrollView : NSScrollView
@end
