// What the form asks for.
#import <OvAppKit/OvAppKit.h>

@class FormField;

// Embossed; not edited.
OvTextField *FormMakeHeader(NSString *text);

// The fields, in the order in which Tab goes through them.
NSArray *FormMakeFields();

// What "Fill with example" sets.
NSString *FormExample(NSString *fieldName);

// Hints that count what is typed. What is wrong with the text that keeps the user in the field,
// or nil.
NSString *FormUpdateHint(FormField *field);
