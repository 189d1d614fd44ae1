#import "pictures/PictureGrid.h"

static id<PictureGridEditing> editingPage(HXMatrixView *grid) {
  return static_cast<id<PictureGridEditing>>([grid dataSource]);
}

// What was typed for which item. It must be read before the grid ends the editing; what is
// done with it may reload the grid, and so comes after that. The notice can come twice for
// one edit, the second time with no item being edited.
struct TypedName {
  NSUInteger index = NSNotFound;
  NSString *text = nil;
  BOOL cancelled = NO;

  TypedName(HXMatrixView *grid, NSNotification *notification, BOOL isCancelled)
      : cancelled(isCancelled) {
    if (cancelled) return;
    index = [grid editedItemIndex];
    text = [[[[notification object] string] copy] autorelease];
  }

  void deliver(HXMatrixView *grid) const {
    if (cancelled) [editingPage(grid) matrixViewDidCancelEditing:grid];
    if (index == NSNotFound) return;
    [editingPage(grid) matrixView:grid didEditItemIndex:index text:text];
  }
};

static BOOL isCancelCommand(SEL command) {
  return sel_isEqual(command, @selector(cancelOperation:)) ||
         sel_isEqual(command, @selector(complete:));
}

@implementation PictureGrid

- (void)textDidEndEditing:(NSNotification *)notification {
  const TypedName typed(self, notification, _editingCancelled);
  _editingCancelled = NO;
  [super textDidEndEditing:notification];
  typed.deliver(self);
}

- (BOOL)textView:(NSTextView *)editor doCommandBySelector:(SEL)command {
  (void)editor;
  if (!isCancelCommand(command)) return NO;
  _editingCancelled = YES;
  [[self window] makeFirstResponder:self];
  return YES;
}

- (void)copy:(id)sender {
  (void)sender;
  [editingPage(self) copySelection];
}

- (void)paste:(id)sender {
  (void)sender;
  [editingPage(self) pasteFiles];
}

@end

@implementation PictureGridWithOtherRules

- (void)textDidEndEditing:(NSNotification *)notification {
  const TypedName typed(self, notification, _editingCancelled);
  _editingCancelled = NO;
  [super textDidEndEditing:notification];
  typed.deliver(self);
}

- (BOOL)textView:(NSTextView *)editor doCommandBySelector:(SEL)command {
  (void)editor;
  if (!isCancelCommand(command)) return NO;
  _editingCancelled = YES;
  [[self window] makeFirstResponder:self];
  return YES;
}

- (void)copy:(id)sender {
  (void)sender;
  [editingPage(self) copySelection];
}

- (void)paste:(id)sender {
  (void)sender;
  [editingPage(self) pasteFiles];
}

@end
