// One page of the gallery: a component to look at and to play with, and its settings.
//
// To add a page, add one file to gallery/pages/: a subclass that answers the methods below
// and announces itself in +load:
//
//   @implementation ScrollerPage
//   + (void)load { [GalleryPage addPageClass:self]; }
//   + (int)position { return 30; }
//   + (NSString *)name { return @"scrollers"; }
//   + (NSString *)title { return @"Scrollers"; }
//   + (NSString *)summary { return @"Scrollers drawn from named images."; }
//   - (NSView *)makeView { return …; }
//   @end
#import <AppKit/AppKit.h>

// Posted by a page, with itself as the object, when its message or what it reports for the
// status file has changed.
extern NSString *const GalleryPageDidChangeNotification;

@class GallerySettings;

@interface GalleryPage : NSObject {
  NSView *_view;
  GallerySettings *_settings;
  NSString *_message;
  BOOL _messageIsWarning;
}

+ (void)addPageClass:(Class)pageClass;
// One page of each class that announced itself, by position.
+ (NSArray *)makePages;

// Where the page comes in the list: the lowest first.
+ (int)position;
// For the command line and for files: lower case, no spaces.
+ (NSString *)name;
+ (NSString *)title;
// For the list of pages; the title by default.
+ (NSString *)shortTitle;
// One sentence under the title.
+ (NSString *)summary;

// The page's view and settings, made when they are first asked for. The window resizes the
// view; the settings keep their height.
- (NSView *)view;
- (GallerySettings *)settings;

// For subclasses. The view must be made; there are no settings by default.
- (NSView *)makeView;
- (void)fillSettings:(GallerySettings *)settings;

// The page has come into the window, or is about to leave it.
- (void)didShow;
- (void)willHide;
// The program ends: stop what runs in the background.
- (void)close;
// The view that should have the keyboard; the page's view by default.
- (NSView *)keyView;
// Whether everything that loads by itself is there. YES by default.
- (BOOL)isSettled;

// One line under the page.
- (NSString *)message;
- (BOOL)messageIsWarning;
- (void)setMessage:(NSString *)message warning:(BOOL)warning;

// How much of what runs in the background is done, from 0 to 1; 1, the default, when nothing
// does. The window shows a bar meanwhile.
- (double)progress;

// Tells observers that something they show has changed.
- (void)changed;

// "key=value" strings for the status file: what tests need to see and to point at.
- (NSArray *)statusLines;

@end

// A rectangle of a view as a status line "key=x y width height name", counted in pixels from
// the top left corner of the screen.
NSString *GalleryStatusLine(NSString *key, NSView *view, NSRect rect, NSString *name);
