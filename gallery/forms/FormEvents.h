// Hears every notification that a form's controls, and the formatters on them, can post.
#import <AppKit/AppKit.h>

#include <functional>

@class FormField;

@interface FormEvents : NSObject {
  NSArray *_fields;
  std::function<void(NSString *, FormField *)> _happened;
}
- (id)initWithFields:(NSArray *)fields
            happened:(std::function<void(NSString *name, FormField *field)>)happened;
@end
