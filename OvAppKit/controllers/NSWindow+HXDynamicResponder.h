#import <OvAppKit/HXDynamicResponder.h>

/** The dynamic part of a window's responder chain. Hosts enable and disable responders; those
    send the messages that change a chain. Responders of other kinds are passed over and keep
    their places. */
@interface NSWindow (HXDynamicResponderExtensions)

/** Puts a responder into the chain: before the first dynamic responder of the same or a
    higher ordering, else before the window controller, else, without one, before the
    application. Nothing happens when it is in the chain, when it is no dynamic responder, or
    when the window has a controller that is not in the chain. Not retained. */
- (void)_addDynamicResponder:(HXDynamicResponder *)responder;

/** Takes a responder out of the chain. Its own next responder stays as it was. Nothing
    happens when it is not in the chain. */
- (void)_removeDynamicResponder:(HXDynamicResponder *)responder;

/** Takes all dynamic responders out; they are returned in the order in which they stood. */
- (NSArray *)_removeAllDynamicResponders;

/** Takes all dynamic responders out and adds each again, in the order in which they stood:
    ascending afterwards, those of equal ordering reversed. */
- (void)_rearrangeDynamicResponders;

/** Whether a responder is in the chain. The responder next to the window is deliberately
    never looked at: NO for that one. */
- (BOOL)_containsDynamicResponder:(HXDynamicResponder *)responder;

/** The dynamic responders in the order of the chain: a new, autoreleased array. */
- (NSArray *)_dynamicResponders;
/** Those of them that are of a class or its subclasses. */
- (NSArray *)_dynamicRespondersKindOfClass:(Class)responderClass;

@end
