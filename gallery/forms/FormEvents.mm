#import "forms/FormEvents.h"

#import <OvAppKit/OvAppKit.h>

#import "forms/FormField.h"

static NSArray *textFieldNames() {
  return @[
    OvTextFieldBecomeFirstResponderNotification, OvTextFieldResignFirstResponderNotification,
    OvTextFieldDidBeginEditingNotification, OvTextFieldDidEndEditingNotification,
    OvTextFieldDidChangeNotification, OvTextFieldDidBecomeValidNotification,
    OvTextFieldDidBecomeInvalidNotification
  ];
}

static NSArray *comboBoxNames() {
  return @[
    OvComboBoxBecomeFirstResponderNotification, OvComboBoxResignFirstResponderNotification,
    OvComboBoxDidBeginEditingNotification, OvComboBoxDidEndEditingNotification,
    OvComboBoxDidChangeNotification, OvComboBoxDidBecomeValidNotification,
    OvComboBoxDidBecomeInvalidNotification
  ];
}

static NSArray *plainTextFieldNames() {
  return @[
    OvVPTextFieldBecomeFirstResponderNotification, OvVPTextFieldResignFirstResponderNotification,
    OvVPTextFieldDidBeginEditingNotification, OvVPTextFieldDidEndEditingNotification,
    OvVPTextFieldDidChangeNotification, OvVPTextFieldDidBecomeValidNotification,
    OvVPTextFieldDidBecomeInvalidNotification
  ];
}

static NSArray *plainComboBoxNames() {
  return @[
    OvVPComboBoxBecomeFirstResponderNotification, OvVPComboBoxResignFirstResponderNotification,
    OvVPComboBoxDidBeginEditingNotification, OvVPComboBoxDidEndEditingNotification,
    OvVPComboBoxDidChangeNotification
  ];
}

static NSArray *namesFor(NSTextField *control) {
  if ([control isKindOfClass:[OvTextField class]]) return textFieldNames();
  if ([control isKindOfClass:[OvComboBox class]]) return comboBoxNames();
  if ([control isKindOfClass:[OvVPComboBox class]]) return plainComboBoxNames();
  return plainTextFieldNames();
}

@implementation FormEvents

- (id)initWithFields:(NSArray *)fields
            happened:(std::function<void(NSString *, FormField *)>)happened {
  self = [super init];
  if (!self) return nil;
  _fields = [fields retain];
  _happened = std::move(happened);
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (FormField *field in fields) {
    NSTextField *control = [field control];
    for (NSString *name in namesFor(control)) {
      [center addObserver:self selector:@selector(controlPosted:) name:name object:control];
    }
    if (NSFormatter *formatter = [control formatter]) {
      [center addObserver:self
                 selector:@selector(controlPosted:)
                     name:OvVPFormatterBufferIsFull
                   object:formatter];
    }
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_fields release];
  [super dealloc];
}

- (void)controlPosted:(NSNotification *)notification {
  const id sender = [notification object];
  for (FormField *field in _fields) {
    if ([field control] != sender && [[field control] formatter] != sender) continue;
    _happened([notification name], field);
    return;
  }
}

@end
