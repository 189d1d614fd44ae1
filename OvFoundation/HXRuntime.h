#import <Foundation/Foundation.h>
#import <OvFoundation/OvDefines.h>

/* Tools for a class's table of instance methods. What they change stays changed for
   the life of the process, for every instance, and also for subclasses that do not
   override the method. (Class methods are out of their reach: the run time does not
   tell the ancestors of the class of a class.)

   Selectors are the same when their names are, whatever types they carry. */

/** The class that implements the instance method itself: `cls` or the nearest
    ancestor that does. Nil when there is none, or for a Nil class or NULL selector.
    Methods that an instance forwards, or adds on demand, do not count. */
OV_EXPORT Class HXClassImplementingMethod(Class cls, SEL selector);

/** Gives `cls` a method under `newSelector` with the implementation and the types
    that `selector` has for it, inherited ones included.

    YES when the method was added. NO, and nothing is changed, when the class does
    not have `selector`, implements `newSelector` itself already (an inherited
    `newSelector` is overridden), or an argument is Nil or NULL. */
OV_EXPORT BOOL HXDuplicateInstanceMethodWithSelector(Class cls, SEL selector, SEL newSelector);

/** Makes instances of `target` answer `targetSelector` with the implementation that
    `source` has for `sourceSelector`, inherited ones included.

    Only `target` and its subclasses are changed: a method that `target` merely
    inherits is overridden in `target`, its ancestor's stays as it is. A selector
    that `target` does not have at all is added. The method keeps the types that it had.

    YES when the implementation is in place (also if it was before); NO, and nothing
    is changed, when `source` does not have `sourceSelector` or an argument is Nil
    or NULL. */
OV_EXPORT BOOL HXReplaceMethodImplementationWithSelectorOnClass(Class target, SEL targetSelector,
                                                                Class source, SEL sourceSelector);
