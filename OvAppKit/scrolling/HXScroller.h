// HXScroller: a scroller that looks like the platform's, or is drawn from images in one of two
// themes, and that tells when the user works it.
//
//   HXScroller *scroller = [[HXScroller alloc] initWithFrame:NSMakeRect(0, 0, 18, 200)];
//   [scroller setAppearance:HXScrollerAppearanceMetal];
//   [scroller setDelegate:self];       // scroller:willTrackPart:, scroller:didTrackPart:
//   [scroller setTarget:self];
//   [scroller setAction:@selector(scrolled:)];
//   [scroller setKnobProportion:0.2];  // enables it, as with every scroller
//
// Like every scroller of the platform it is as thick as +scrollerWidth, horizontal if it is
// wider than high, and flipped. HXScrollView installs it in place of the platform's scrollers.
//
// The images
//
// Each theme has one image for each part and orientation, for example
// "HXScroller_Metal_KnobBody_V": the theme, the part, and "H" or "V". An image holds the states
// of its part side by side, equally wide, in this order:
//
//   arrows and knob:  disabled, default, alternate (pressed)
//   end caps:         disabled, default
//   slot:             default
//
// Arrows, caps and knob are drawn at the size of their images; the knob's body and the slot are
// stretched along the scroller. What has no image is not drawn and takes no room. A scroller
// that is disabled, or whose window is not the key window, shows the disabled state, except for
// the slot, which has one state only.
//
// Where the arrows stand, for the whole program (see +_arrowsConfig):
//
//   1   [<|                              |>]
//   2   [<|>|                              ]     ] is EndCap_MaxEnd
//   3   [                              |<|>]     [ is EndCap_MinEnd
//   4   [<|>|                          |<|>]
//
// A press hits what the images show, across the whole thickness. In a scroller too short for
// arrows and knob the knob is left out, and in one too short for the arrows they are, too: the
// slot is all it shows then.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

@class HXDictionaryImageContainer;

/** What -[HXScroller setAppearance:] takes. */
enum {
  HXScrollerAppearanceDefault = 0, /* drawn by the platform */
  HXScrollerAppearanceMetal = 1,   /* images "HXScroller_Metal_..." */
  HXScrollerAppearanceBlack = 2    /* images "HXScroller_Black_..." */
};

/** The parts of a scroller that have images. Each constant is the part's name as it stands in
    the images' names, the text after "HXScrollerPartName_". "MinEnd" is the left or upper end.
    An arrow with "EndCap" is the one of its end that meets the slot, or the only one of it. */
OV_EXPORT NSString *const HXScrollerPartName_DecrementArrow_MinEnd;
OV_EXPORT NSString *const HXScrollerPartName_DecrementArrow_MaxEnd_EndCap;
OV_EXPORT NSString *const HXScrollerPartName_DecrementArrow_MinEnd_EndCap;
OV_EXPORT NSString *const HXScrollerPartName_IncrementArrow_MaxEnd;
OV_EXPORT NSString *const HXScrollerPartName_IncrementArrow_MaxEnd_EndCap;
OV_EXPORT NSString *const HXScrollerPartName_IncrementArrow_MinEnd_EndCap;
OV_EXPORT NSString *const HXScrollerPartName_KnobBody;
OV_EXPORT NSString *const HXScrollerPartName_KnobCap_MaxEnd;
OV_EXPORT NSString *const HXScrollerPartName_KnobCap_MinEnd;
OV_EXPORT NSString *const HXScrollerPartName_EndCap_MaxEnd;
OV_EXPORT NSString *const HXScrollerPartName_EndCap_MinEnd;
OV_EXPORT NSString *const HXScrollerPartName_KnobSlot;

@interface HXScroller : NSScroller {
  id delegate;
  int _appearance;
  NSDictionary *_imageContainers;
  struct OvScrollerState *_state;
}

// MARK: Creating

/** A scroller in the default appearance, without delegate; otherwise as the platform makes one:
    disabled, with the thickness of +scrollerWidth. */
- (id)initWithFrame:(NSRect)frame;

/** A scroller from an archive or an interface file, keyed or sequential. What this class adds is
    not archived: the scroller has the default appearance and no delegate. */
- (id)initWithCoder:(NSCoder *)coder;

// MARK: Appearance

/** How the scroller is drawn: one of the constants above, HXScrollerAppearanceDefault by default.
    The value it has already does nothing. Any other loads the images of HXScroller for it and
    for the present orientation, whatever subclass the receiver is of, and redraws the scroller;
    the default appearance lets them go. The images stay those of this orientation when the
    scroller turns afterwards; set another appearance, and this one again, to have it follow. A
    number that is no appearance draws nothing at all. */
- (void)setAppearance:(int)appearance;
- (int)appearance;

// MARK: Delegate

/** Hears of tracking; not retained, nil by default. */
- (void)setDelegate:(id)anObject;
- (id)delegate;

// MARK: State

/** Whether the scroller can be worked: what -setEnabled: set, or setting the knob's proportion
    (anything below 1 enables). The platform's scroller answers YES always. */
- (BOOL)isEnabled;

/** NO with images, which may be transparent in places. */
- (BOOL)isOpaque;

// MARK: Tracking

/** Each of these tells the delegate scroller:willTrackPart:, follows the mouse until the button is
    released while sending the action, and tells scroller:didTrackPart: with the same part. The
    knob sends the action whenever its value changes. The arrows send it at once, and repeatedly
    after 0.3 seconds for as long as the pointer is on them; with the Option key they turn pages.
    The paging area, between knob and arrows, turns pages until the knob has come to the pointer.
    While the action is sent, -hitPart is the part; it is NSScrollerNoPart when no part is
    tracked. A press on a disabled scroller goes on to the next responder. */
- (void)trackKnob:(NSEvent *)event;
- (void)trackScrollButtons:(NSEvent *)event;
- (void)trackPagingArea:(NSEvent *)event;

/** The part at a point of the window. Between arrows and knob it is NSScrollerDecrementPage or
    NSScrollerIncrementPage, in every appearance, where the platform's scroller knows a slot only. A
    scroller too short for a knob has no pages: with images there is no part, in the default
    appearance the platform's slot. */
- (NSScrollerPart)testPart:(NSPoint)point;

/** The place of a part: the platform's, or with images the place of what they show; the empty
    rectangle for what there is no room for. With images the pages lie between arrows and knob, the
    end caps of the slot among them, and an arrow that stands at both ends has the place at its own:
    the decrement arrow at the minimum, the increment arrow at the maximum. */
- (NSRect)rectForPart:(NSScrollerPart)part;

// MARK: Images

/** Whether the scroller may lie over the content: YES for HXScroller itself, NO for every subclass,
    which may draw what does not fit there. The platform does not ask. */
+ (BOOL)isCompatibleWithOverlayScrollers;

/** The key of an image in its container: HXImageControlDisabledImageKey if not enabled; otherwise
    HXImageControlAlternateImageKey if pushed is 1, and HXImageControlDefaultImageKey for every
    other number. */
+ (NSString *)_imageKeyForPartEnabled:(BOOL)enabled partPushed:(int)pushed;

/** The name of a part's image, or nil for an appearance without images. */
+ (NSString *)_imageResourceNameForPartName:(NSString *)partName
                                 appearance:(int)appearance
                                    isHoriz:(BOOL)horizontal;

/** New containers, an HXDictionaryImageContainer for each of the twelve part names, with the images
    of the receiver's own bundle; nil for an appearance without images. */
+ (NSDictionary *)_imageContainersForAppearance:(int)appearance isHoriz:(BOOL)horizontal;

@end

/** The steps of drawing. */
@interface HXScroller (HXScrollerDrawing)

/** Draws an arrow (NSScrollerIncrementArrow, 0, or NSScrollerDecrementArrow, 1), with the piece
    of the other arrow that stands at the same end. highlightPart tells which of the two shows as
    pressed: 0 the increment arrow, 1 the decrement arrow, anything else none. Where both arrows
    stand at one end, the call for one draws both, and the call for the other draws the cap of
    the empty end. */
- (void)drawArrow:(NSScrollerArrow)arrow highlightPart:(NSInteger)highlightPart;

/** Draws the knob in the rectangle of NSScrollerKnob: the body, which reaches one point under
    either cap so that no seam shows, then the caps. Pressed while it is dragged. */
- (void)drawKnob;

/** Draws the slot in a rectangle, as thick as its image. With images the flag is ignored. */
- (void)drawKnobSlotInRect:(NSRect)slotRect highlight:(BOOL)flag;

@end

/** What a delegate may have methods for; it is asked at every call. */
@interface NSObject (HXScrollerDelegate)
/** Before and after the user works a part of the scroller: the scroller's hitPart when the mouse
    went down. */
- (void)scroller:(HXScroller *)scroller willTrackPart:(NSScrollerPart)part;
- (void)scroller:(HXScroller *)scroller didTrackPart:(NSScrollerPart)part;
@end

/** What the platform's scroller is assumed to have. */
@interface NSScroller (OvScrollerArrows)

/** Where the arrows of scrollers stand: 1 one at each end, 2 both at the minimum end, 3 both at
    the maximum end, 4 both at both ends. The answer is 3 where the platform's scrollers have
    them together, which they have by default, and otherwise (user default
    GSScrollerArrowsSameEnd NO, or a theme) 1. HXScroller asks its own class, so a subclass may
    answer another number; a number that is none of these stands for no arrows. */
+ (int)_arrowsConfig;

@end
