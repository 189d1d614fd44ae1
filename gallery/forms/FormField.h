// One entry of a form: a title, a control in a rounded frame, and a hint under it.
#import <AppKit/AppKit.h>

@interface FormField : NSView {
  NSString *_name;
  NSString *_title;
  NSTextField *_control;
  NSTextField *_hint;
  BOOL _focused;
}

+ (CGFloat)height;

// The name is for tests. Takes the platform's frame and background off the control, and
// makes it editable.
- (id)initWithName:(NSString *)name
             title:(NSString *)title
              hint:(NSString *)hint
           control:(NSTextField *)control;

- (NSString *)name;
- (NSString *)title;
- (NSTextField *)control;

- (void)setHint:(NSString *)hint warning:(BOOL)warning;

// Whether the control has the keyboard. The frame shows it after -updateFocus.
- (BOOL)isFocused;
- (void)updateFocus;

// What the control shows now, also while it is being edited.
- (NSString *)text;
- (NSColor *)textColor;

// The name, the text, the colour as "text" or "warning", and the place: for the status file.
- (NSArray *)statusLines;

@end
