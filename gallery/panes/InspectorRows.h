// What the sections of the inspector are filled with.
#import <AppKit/AppKit.h>

inline constexpr CGFloat InspectorWidth = 320;
// Where a header's title begins, and what is below it, too.
inline constexpr CGFloat InspectorIndent = 35;

// One value, with its name in front.
NSView *InspectorRow(NSString *name, NSString *value);
// A text to edit.
NSView *InspectorNotes();
// The rows one below the other, with a little air at both ends.
NSView *InspectorStack(NSArray *rows);
