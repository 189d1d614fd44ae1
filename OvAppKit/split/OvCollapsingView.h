// OvCollapsingView: a box that folds to its header.
//
//   OvCollapsingView *box = [[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)];
//   [box setTitle:@"Filter"];
//   [box setHeadline:@"3 items"];      // shown after the title while folded
//   [box setContentView:filters];
//   [box setDelegate:self];            // collapsingViewDidCollapse: …: close the gap
//
//   12 23 35                        width - 12
//    |  |  |                             |
//   +-----------------------------------------+  0
//   |  v   Filter                             |       header: a click anywhere folds
//   +-----------------------------------------+  headerHeight
//   |                                         |
//   |              content view               |
//   |                                         |
//   +-----------------------------------------+  height
//
// Folding changes the view's own height and nothing else: what lies around it is moved by those
// who hear of the notifications. The coordinates are flipped.
//
// box size   header height   font size   top of the triangle   (points)
//    0            23             13               4
//    1            17             11               2
//    2            14              9               2
//
// The keyboard works the triangle as it does every button: Space, Return or Enter folds and
// unfolds while the triangle has the keyboard.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

@class OvTextField;

/** Posted, synchronously, around each folding and each unfolding, with the view as the object
    and without user info. The delegate hears of them through the methods of the same name
    below. At a "will" the state, -isCollapsed, is the new one already, and the frame is still
    the old one. */
OV_EXPORT NSString *const OvCollapsingViewWillCollapseNotification;
OV_EXPORT NSString *const OvCollapsingViewDidCollapseNotification;
OV_EXPORT NSString *const OvCollapsingViewWillExpandNotification;
OV_EXPORT NSString *const OvCollapsingViewDidExpandNotification;

/** What a delegate may have methods for; those it has when it is set are called. */
@interface NSObject (OvCollapsingViewDelegate)
- (void)collapsingViewWillCollapse:(NSNotification *)notification;
- (void)collapsingViewDidCollapse:(NSNotification *)notification;
- (void)collapsingViewWillExpand:(NSNotification *)notification;
- (void)collapsingViewDidExpand:(NSNotification *)notification;
@end

@interface OvCollapsingView : NSView {
  NSString *_title;
  NSString *_headline;
  NSButton *_disclosure;
  OvTextField *_header;
  NSView *_contentView;
  id _delegate;
  BOOL _collapsed;
  NSSize _reversedFrameSize;
  int _boxSize;
  BOOL _locked;
  struct OvCollapsingViewState *_state;
}

// MARK: Creating

/** An unfolded, unlocked view of box size 0, or of the given one, without title. */
- (id)initWithFrame:(NSRect)frame;
- (id)initWithFrame:(NSRect)frame size:(int)boxSize;

/** A view from an archive or an interface file, keyed or sequential. It has box size 0, or the
    given one, whatever it had when it was archived, and is unfolded: a folded view is archived
    with the height it would unfold to. Title, headline, lock, content view and, conditionally,
    the delegate are kept. */
- (id)initWithCoder:(NSCoder *)coder;
- (id)initWithCoder:(NSCoder *)coder size:(int)boxSize;
- (void)encodeWithCoder:(NSCoder *)coder;

/** The content view that a new view installs. Answers nil, for subclasses to override. */
- (NSView *)defaultContentView;

// MARK: Header

/** The title, nil by default; retained. A different object is shown at once, the same one is
    not. */
- (void)setTitle:(NSString *)title;
- (NSString *)title;

/** The summary that follows the title while the view is folded, as "title:headline" without a
    blank; nil (the default) or empty for none. Retained like the title. */
- (void)setHeadline:(NSString *)headline;
- (NSString *)headline;

/** Shows title and headline as the state wants it. Every setter here does so by itself. */
- (void)refresh;

/** The triangle: a toggle button that is on while the view is unfolded. Its name is misspelt
    and stays so. */
- (NSButton *)discrosure;
/** The text of the header. */
- (OvTextField *)header;

/** Whether the title is embossed, see OvTextFieldCell. NO by default. */
- (void)setHeaderEmboss:(BOOL)flag;
- (BOOL)isHeaderEmboss;

/** The tool tips of the triangle, the title and the content view; nil by default. That of the
    content view stays with the view that was the content when it was set. */
- (void)setDisclosureToolTip:(NSString *)string;
- (NSString *)disclosureToolTip;
- (void)setHeaderToolTip:(NSString *)string;
- (NSString *)headerToolTip;
- (void)setContentViewToolTip:(NSString *)string;
- (NSString *)contentViewToolTip;

/** The context menu of the view, and of its triangle, title and present content view. */
- (void)setMenu:(NSMenu *)menu;

// MARK: Folding

/** Folds or unfolds: posts the "will" notification, exchanges the frame's height with that of
    reversedFrameSize, and posts the "did" notification. The width stays. Works on a locked view
    as well; the state it has already does nothing. If something in the content has the keyboard
    when the view folds, the triangle takes it. */
- (void)setCollapsed:(BOOL)flag;
- (BOOL)isCollapsed;

/** YES keeps the user from folding and unfolding, and disables the triangle. NO by default. */
- (void)setLocked:(BOOL)flag;
- (BOOL)isLocked;

/** The size of the other state: its height is what the view takes at the next change. At first
    that is the header's. The setter stores the size and does nothing else. */
- (void)setReversedFrameSize:(NSSize)size;
- (NSSize)reversedFrameSize;

/** Folds or unfolds when the header is clicked, unless the view is locked. */
- (void)mouseDown:(NSEvent *)event;

/** YES. */
- (BOOL)isFlipped;

// MARK: Box size

/** 0, 1 or 2; any other number counts as 0 for the header's height and font, and as 1 for the
    place of the triangle. */
- (int)boxSize;
/** Stores the number; nothing is laid out. */
- (void)_setBoxSize:(int)boxSize;
/** In points, of the table above. */
- (float)headerHeight;
- (float)fontSize;

// MARK: Delegate

/** Hears of the notifications; not retained, nil by default. */
- (void)setDelegate:(id)delegate;
- (id)delegate;

@end

@interface OvCollapsingView (OvCollapsingViewContent)

/** The view below the header, retained; nil for none. It gets the place below the header and
    grows with the view. While the view is folded it has no height, and what is in it keeps its
    places: its own subviews are laid out again when the view unfolds, and only if its size has
    changed. */
- (void)setContentView:(NSView *)view;
- (NSView *)contentView;

/** The size that the content has: the frame's width, and the height below the header. */
- (NSSize)visibleContentViewSize;

@end
