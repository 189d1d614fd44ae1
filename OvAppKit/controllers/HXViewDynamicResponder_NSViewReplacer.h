#import <AppKit/AppKit.h>

/** Supplies the two methods by which HXViewDynamicResponder learns that a view changes its
    window. Never instantiated: the methods run with views of patched classes as receiver,
    and then run the class's own method. */
@interface HXViewDynamicResponder_NSViewReplacer : NSView

/** Patches a view class for the life of the process: its viewWillMoveToWindow: is kept as
    "__original_viewWillMoveToWindow:", its viewDidMoveToWindow as
    "__original_viewDidMoveToWindow", and the methods below take their places. Instances that
    exist already are affected, and so are subclasses as far as they call super.

    A class that is patched itself, or has a patched ancestor, is left alone. Nil and classes
    of other objects are ignored. */
+ (void)replaceMethodImplementationOnClass:(Class)viewClass;

/** Takes the view's responders out of the chain of the window that the view leaves: their
    window becomes nil. This reaches only the responders in that chain, the enabled ones.
    Then runs the class's own method. */
- (void)viewWillMoveToWindow:(NSWindow *)newWindow;
/** Gives all the view's live responders, the disabled ones included, the view's new window,
    if there is one. Then runs the class's own method. */
- (void)viewDidMoveToWindow;

@end
