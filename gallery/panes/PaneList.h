// A list as a mail program has it: rows of a title, a quieter second line and a number, one
// of them chosen by a click or the arrow keys.
#import <AppKit/AppKit.h>

#include <functional>
#include <string>
#include <vector>

struct PaneRow {
  std::string title;
  std::string detail;  // none: the row is low
  int badge = 0;       // none if 0
};

@interface PaneList : NSView {
  std::vector<PaneRow> _rows;
  NSInteger _selectedRow;
  NSColor *_background;
  std::function<void(NSInteger)> _chosen;
}
// Called with the row when the user chooses one.
- (id)initWithBackground:(NSColor *)background chosen:(std::function<void(NSInteger row)>)chosen;
// The first row is selected; nothing is called.
- (void)setRows:(const std::vector<PaneRow> &)rows;
- (NSInteger)selectedRow;
- (void)selectRow:(NSInteger)row;
@end

// A message: subject, sender, text.
@interface PaneMessage : NSView {
  std::string _subject;
  std::string _from;
  std::string _text;
}
- (void)setSubject:(const std::string &)subject
              from:(const std::string &)from
              text:(const std::string &)text;
@end
