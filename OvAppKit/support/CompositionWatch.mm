#import "support/CompositionWatch.h"

namespace {

NSTextView *textView(NSText *text) {
  return [text isKindOfClass:[NSTextView class]] ? static_cast<NSTextView *>(text) : nil;
}

bool isWithin(NSRange inner, NSRange outer) {
  return inner.location >= outer.location && NSMaxRange(inner) <= NSMaxRange(outer);
}

// The platform unmarks a range without looking whether the text is still that long.
void unmark(NSTextView *editor) {
  if (![editor hasMarkedText]) return;
  if (NSMaxRange([editor markedRange]) > [[editor string] length]) {
    [editor setMarkedText:@"" selectedRange:NSMakeRange(0, 0)];
  }
  [editor unmarkText];
}

}  // namespace

@interface _OvCompositionWatch ()
- (BOOL)_isEditing;
- (void)_settlePending;
- (void)_storageDidProcessEditing:(NSNotification *)notification;
- (void)_lookWhetherCommitted;
@end

@implementation _OvCompositionWatch

- (id)initWithControl:(id)control committed:(std::function<void(NSText *)>)committed {
  self = [super init];
  if (self == nil) return nil;
  _control = control;
  _committed = std::move(committed);
  return self;
}

- (void)dealloc {
  [self invalidate];
  [super dealloc];
}

- (void)invalidate {
  [self watch:nil];
  _control = nil;
}

- (void)watch:(NSText *)text {
  NSTextView *editor = textView(text);
  if (editor == _editor) return;
  [self _settlePending];
  [[NSNotificationCenter defaultCenter] removeObserver:self
                                                  name:NSTextStorageDidProcessEditingNotification
                                                object:nil];
  // A text view owns its own watch.
  if (_editor != _control) [_editor release];
  _editor = editor;
  if (_editor != _control) [_editor retain];
  _lastEdit = NSMakeRange(NSNotFound, 0);
  if (_editor == nil) return;
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(_storageDidProcessEditing:)
                                               name:NSTextStorageDidProcessEditingNotification
                                             object:[_editor textStorage]];
}

- (void)start:(NSText *)text {
  [self watch:text];
  if (![self _isEditing]) return;
  unmark(_editor);
  [self _settlePending];
}

- (BOOL)isComposing:(NSText *)text {
  [self watch:text];
  if ([_editor hasMarkedText]) {
    const NSRange marked = [_editor markedRange];
    // A composition changes the text that it marks; whatever else is inserted has ended it.
    if (marked.location == NSNotFound || _lastEdit.location == marked.location ||
        isWithin(_lastEdit, marked)) {
      _pending = YES;
      return YES;
    }
    unmark(_editor);
  }
  [self _settlePending];
  return NO;
}

- (BOOL)commit:(NSText *)text {
  if (_editor == nil || text != _editor) return NO;
  const BOOL composed = _pending || [_editor hasMarkedText];
  unmark(_editor);
  [self _settlePending];
  return composed;
}

// The editor is shared by all fields of its window.
- (BOOL)_isEditing {
  return _editor != nil && (_editor == _control || [_editor delegate] == _control);
}

- (void)_settlePending {
  _pending = NO;
  [NSObject cancelPreviousPerformRequestsWithTarget:self
                                           selector:@selector(_lookWhetherCommitted)
                                             object:nil];
}

- (void)_storageDidProcessEditing:(NSNotification *)notification {
  if (![self _isEditing]) return;
  NSTextStorage *storage = [notification object];
  if (([storage editedMask] & NSTextStorageEditedCharacters) != 0) {
    _lastEdit = [storage editedRange];
  }
  // While -unmarkText is at work, the text still says that it is marked.
  if (![_editor hasMarkedText]) return;
  [self _settlePending];
  _pending = YES;
  [self performSelector:@selector(_lookWhetherCommitted)
             withObject:nil
             afterDelay:0
                inModes:@[
                  NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode
                ]];
}

- (void)_lookWhetherCommitted {
  if (!_pending || ![self _isEditing] || [_editor hasMarkedText]) return;
  _pending = NO;
  _committed(_editor);
}

@end
