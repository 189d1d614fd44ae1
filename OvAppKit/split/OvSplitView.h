// OvSplitView: a split view whose panes collapse and expand.
//
// The view divides itself among its subviews, the panes, side by side (vertical) or
// stacked (horizontal, the default), with a divider between neighbours. A divider is
// dragged by the view's own mouse loop, in which the delegate may let a pane collapse and
// may constrain the divider. The layout can be saved and comes back by itself.
//
//   OvSplitView *split = [[OvSplitView alloc] initWithFrame:frame];
//   [split setVertical:YES];                       // panes side by side
//   [split addSubview:list];
//   [split addSubview:document];
//   [split setDelegate:self];                      // splitView:canCollapseSubview: …
//   [split resizeSubviewsWithOldSize:[split bounds].size];
//   [split setLayoutAutosaveName:@"Main window"];  // restores, and saves from now on
//
//   +--------+---+-----------------+---+-------+
//   |        | d |                 | d |       |     divider i lies between pane i
//   | pane 0 | 0 |     pane 1      | 1 | pane 2|     and pane i + 1
//   |        |   |                 |   |       |
//   +--------+---+-----------------+---+-------+
//   0 - - - - - - axis of a vertical view - - ->     coordinates are flipped
//
// A pane's thickness is its width in a vertical view and its height in a horizontal one. A
// collapsed pane takes no space, though both its dividers stay; it keeps its size and is
// parked at (1000000, 1000000).
//
// Adding and removing panes lays nothing out: send -resizeSubviewsWithOldSize: afterwards,
// or resize the view. The view uses the main thread only, like every view.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

/** Posted, synchronously, around each collapse and each expansion of a pane. The object is
    the split view; the user info holds "OvSubview", the pane, and "OvSubviewIndex", its
    index among the subviews as an unsigned-int number. The delegate hears of them through
    the methods of the same name below. The "will" notifications are deliberately posted
    after the state has changed: -isSubviewCollapsed: already answers the new one, while the
    layout is still the old one. */
OV_EXPORT NSString *const OvSplitViewSubviewWillExpandNotification;
OV_EXPORT NSString *const OvSplitViewSubviewDidExpandNotification;
OV_EXPORT NSString *const OvSplitViewSubviewWillCollapseNotification;
OV_EXPORT NSString *const OvSplitViewSubviewDidCollapseNotification;

@interface OvSplitView : NSSplitView {
  NSMutableArray *_dividers;
  NSMutableArray *_collapsedSubviews;
  NSCursor *_verticalCursor;
  NSCursor *_horizontalCursor;
  NSString *_tooltip;
  NSCursor *_currentCursor;
  // _autosaveName, an owned copy, is the superclass's.
  BOOL _mouseLocked;
  struct OvSplitViewState *_state;
}

// MARK: Creating

/** A horizontal split view without panes, unlocked, with neither tool tip nor autosave
    name. One that comes from an archive or an interface file keeps its orientation and its
    panes with their frames; no pane of it counts as collapsed, and an autosave name that
    was archived is not taken over: set one with -setLayoutAutosaveName:. */
- (id)initWithFrame:(NSRect)frame;
- (id)initWithCoder:(NSCoder *)coder;

/** Places the dividers beside the panes as the interface file left them. */
- (void)awakeFromNib;

// MARK: Orientation and lock

/** YES: panes side by side, and a left-right resize cursor over the dividers. NO, the
    default: panes stacked, and an up-down cursor. Nothing is laid out: that is done by the
    next resize. */
- (void)setVertical:(BOOL)flag;
- (BOOL)isVertical;

/** YES freezes the dividers: they can neither be dragged nor double-clicked, and the arrow
    cursor stands over them, whatever the orientation. NO by default. */
- (void)setMouseLocked:(BOOL)flag;
- (BOOL)mouseLocked;

/** The tip that every divider shows; retained, nil (none) by default. */
- (void)setToolTip:(NSString *)string;
- (NSString *)toolTip;

// MARK: Delegate

/** Answers the questions below and hears of the notifications above, as well as of the
    platform's two about resizing, whose methods it has when it is set. Not retained; nil by
    default. Registrations that the delegate made itself are left alone. */
- (void)setDelegate:(id)anObject;
- (id)delegate;

// MARK: Drawing

/** Draws the dividers with -drawDividerInRect:, and nothing else. */
- (void)drawRect:(NSRect)rect;

@end

// MARK: Collapsing, layout

@interface OvSplitView (OvSplitViewLayout)

/** Collapses or expands a pane: posts the "will" notification, lays all panes out with
    -resizeSubviewsWithOldSize:, and posts the "did" notification. A pane that is expanded
    comes back in proportion to the size it had when it was collapsed. A pane that has the
    state already is left alone without notifications; so are nil, and a view that is to be
    collapsed but is no pane of this view. */
- (void)setSubview:(NSView *)subview isCollapsed:(BOOL)flag;
/** The same for the pane at an index; an index that has none is ignored. */
- (void)setSubviewAtIndex:(uint32_t)index isCollapsed:(BOOL)flag;

/** Whether the pane was collapsed by this class; its frame plays no part. NO for nil, for
    other views, and for an index that has no pane. */
- (BOOL)isSubviewCollapsed:(NSView *)subview;
- (BOOL)isSubviewCollapsedAtIndex:(uint32_t)index;

/** Shares the view's space among the panes that are not collapsed, in proportion to their
    present thicknesses, in whole points and at least one each. Points that the rounding
    leaves go to randomly chosen panes, at most one each; this is deliberate, so that no
    pane gains for ever, and makes layouts not exactly repeatable. The last shown pane takes
    what fractions remain. If no shown pane has a thickness, the first shown one gets
    everything; if all are collapsed, pane 0 is expanded for it. Neither moves the dividers
    nor posts resize notifications. */
- (void)adjustSubviews;

/** Lays out: posts NSSplitViewWillResizeSubviewsNotification, asks the delegate for
    splitView:resizeSubviewsWithOldSize: or adjusts the subviews, places the dividers, parks
    the collapsed panes and posts NSSplitViewDidResizeSubviewsNotification. Every change of
    the view's size comes here; a move does not. */
- (void)resizeSubviewsWithOldSize:(NSSize)oldSize;

@end

// MARK: Saved layouts

@interface OvSplitView (OvSplitViewPersistence)

/** The layout as a property list: a new dictionary of the orientation and each pane's frame
    and collapsed state, with "Format Version" 1. It is no string, despite the name, which is
    kept. docs/split.md lists the keys. */
- (NSMutableDictionary *)stringWithSavedLayout;

/** Applies such a dictionary: orientation, then frame and collapsed state of pane after
    pane as far as both reach, with notifications for each state that changes. The frames
    act as proportions: the view keeps its size. Anything else, and a dictionary of another
    version, changes nothing; parts of it that cannot be read are left out. In every case
    the view is laid out at the end. */
- (void)setLayoutFromString:(id)layout;

/** Stores the layout in the user defaults under "OvSplitView layout " and the name. nil is
    ignored. */
- (void)saveLayoutUsingName:(NSString *)name;
/** Applies the layout that is stored under a name; NO if there is none. */
- (BOOL)setLayoutUsingName:(NSString *)name;
/** Deletes the layout that is stored under a name. Nothing else does. */
+ (void)removeLayoutUsingName:(NSString *)name;

/** Restores the layout stored under the name, if there is one, and stores it anew after
    each resize and each step of a divider drag. nil, the default, or "" ends that and keeps
    what is stored. Answers NO, and changes nothing, when a live split view has the name; this
    one included, which is deliberate. The name is copied. */
- (BOOL)setLayoutAutosaveName:(NSString *)name;
- (NSString *)layoutAutosaveName;

/** Ignored: the platform's own way of saving would share the name's variable and know
    nothing of collapsed panes. Use -setLayoutAutosaveName:. */
- (void)setAutosaveName:(NSString *)name;

@end

// MARK: Mouse

@interface OvSplitView (OvSplitViewDragging)

/** Drags the divider under the pointer until the button is released, or asks the delegate
    about a double click. Ignored beside the dividers and while the view is locked. */
- (void)mouseDown:(NSEvent *)event;

@end

/** What an OvSplitView asks its delegate beside the platform's own questions, and tells it.
    All are optional. Of the platform's it asks splitView:resizeSubviewsWithOldSize:, and:
    splitView:canCollapseSubview: for both panes beside a divider when it is pressed (NO
    without it); splitView:constrainMinCoordinate:ofSubviewAt: and
    splitView:constrainMaxCoordinate:ofSubviewAt: at the same moment, with the index of the
    divider; and splitView:constrainSplitPosition:ofSubviewAt: for each position of the
    pointer. Coordinates are in points along the axis, in the split view. Constraints may be
    answered as CGFloat or as float. */
@interface NSObject (OvSplitViewDelegate)

/** Where a divider stands while it is dragged beyond its low limit without collapsing the
    pane before it; proposed is that limit, in points along the axis. */
- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMinSize:(CGFloat)proposed
         ofSubviewAt:(NSInteger)dividerIndex;
/** The same for the high limit and the pane behind it. */
- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMaxSize:(CGFloat)proposed
         ofSubviewAt:(NSInteger)dividerIndex;

/** A divider was clicked twice or more; it is not dragged then. The flags are the event's
    modifier flags. */
- (void)splitView:(NSSplitView *)splitView
    didDoubleClickInDivider:(NSInteger)dividerIndex
           withModifierFlag:(uint32_t)modifierFlags;

- (void)splitViewWillExpandSubview:(NSNotification *)notification;
- (void)splitViewDidExpandSubview:(NSNotification *)notification;
- (void)splitViewWillCollapseSubview:(NSNotification *)notification;
- (void)splitViewDidCollapseSubview:(NSNotification *)notification;

@end
