// HXScrollView: a scroll view with scrollers of the class HXScroller, which can have a themed
// look, and with a delegate that hears when the user scrolls by hand.
//
//   HXScrollView *scroll = [[HXScrollView alloc] initWithFrame:frame];
//   [scroll setHasVerticalScroller:YES];
//   [scroll setDocumentView:document];
//   [scroll setDelegate:self];        // scrollViewDidScrollContent:
//   HXScroller *scroller = (HXScroller *)[scroll verticalScroller];
//   [scroller setDelegate:scroll];    // scroller:inScrollView:willTrackPart: and ...didTrackPart:
//
// A drag of the knob, or a press on an arrow or beside the knob, is told like this:
//
//   scroller:inScrollView:willTrackPart:   the mouse went down on a part
//   scrollViewDidScrollContent:            each time the content moves meanwhile
//   scroller:inScrollView:didTrackPart:    the mouse was released
//
// The wheel, keys, automatic scrolling and scrolling by code tell nothing: no scroller is
// tracked then.
//
// Which scrollers tell of their tracking
//
// The scroll view passes on what its scrollers tell it as their delegate. It makes itself the
// delegate of those only that it puts in place of others when it is created:
//
//   in an archive or interface file, of another class   replaced; tells of its tracking
//   in an archive or interface file, an HXScroller      kept; tells nothing
//   made by setHas...Scroller: or autohidesScrollers    an HXScroller; tells nothing
//   installed later by set...Scroller:                  kept, whatever its class; tells nothing
//
// This is deliberate. Whoever wants to hear of the others' tracking, too, makes the scroll view
// their delegate, as in the last line of the example. scrollViewDidScrollContent: comes for every
// scroller of the scroll view, whatever its class and delegate.

#import <AppKit/AppKit.h>

@class HXScroller;

@interface HXScrollView : NSScrollView {
  id delegate;
}

// MARK: Creating

/** A scroll view without scrollers and without delegate. */
- (id)initWithFrame:(NSRect)frame;

/** A scroll view from an archive or interface file, keyed or sequential, without delegate. Of its
    scrollers those that are no HXScroller are replaced. */
- (id)initWithCoder:(NSCoder *)coder;

// MARK: Delegate

/** Hears what the user does; not retained, nil by default. It is asked for each of its methods at
    each call. In any of them it may let go of the scroll view, which stays until the present event
    has been handled. */
- (void)setDelegate:(id)anObject;
- (id)delegate;

// MARK: Tracking

/** Whether the user is working the scroller: there is one, and its hitPart is not
    NSScrollerNoPart. Spelled so deliberately. */
- (BOOL)isHorizontalScrollerTraking;
- (BOOL)isVerticalScrollerTraking;

/** What the scrollers tell their delegate; handed on to the scroll view's own delegate with the
    scroll view. */
- (void)scroller:(HXScroller *)scroller willTrackPart:(NSScrollerPart)part;
- (void)scroller:(HXScroller *)scroller didTrackPart:(NSScrollerPart)part;

/** Receives NSViewBoundsDidChangeNotification of the content view that the scroll view was created
    with, and tells the delegate while a scroller is tracked. A content view that is installed later
    is not observed. */
- (void)contentBoundsDidChange:(NSNotification *)notification;

// MARK: Scrollers

/** The class of the scrollers that setHasHorizontalScroller: and setHasVerticalScroller: make, also
    where autohidesScrollers brings one up: HXScroller. A subclass may answer another. */
+ (Class)_horizontalScrollerClass;
+ (Class)_verticalScrollerClass;

/** Sent once, when the scroll view is created: puts an HXScroller with the same frame and with the
    scroll view as delegate in the place of either scroller that is of no such class. Nothing else
    is taken over from the old one. A scroller that is not there is not made. */
- (void)_replaceScrollersIfNeeded;

/** Sent once, when the scroll view is created: makes the content view post its bounds' changes, and
    observes them. */
- (void)_observeContentBounds;

/** Make the scroller the scroll view's. It shows at once if the scroll view has scrollers of that
    direction. The scroller before it forgets the scroll view, if that was its delegate or target.
 */
- (void)setHorizontalScroller:(NSScroller *)scroller;
- (void)setVerticalScroller:(NSScroller *)scroller;

@end

/** What a delegate may have methods for. */
@interface NSObject (HXScrollViewDelegate)
/** Before and after the user works a part of a scroller (see above which of them): the part of the
    scroller that was hit, for example NSScrollerKnob. */
- (void)scroller:(HXScroller *)scroller
     inScrollView:(HXScrollView *)scrollView
    willTrackPart:(NSScrollerPart)part;
- (void)scroller:(HXScroller *)scroller
    inScrollView:(HXScrollView *)scrollView
    didTrackPart:(NSScrollerPart)part;
/** The bounds of the content view changed while a scroller is tracked. What the delegate scrolls
    in here comes here again. */
- (void)scrollViewDidScrollContent:(HXScrollView *)scrollView;
@end
