#import "forms/LineAnnouncer.h"

#include <algorithm>

#import "forms/EventLog.h"

// As much of a line as the log has room for.
static NSString *quoted(NSString *line) {
  if (!line) return @"an empty line";
  if ([line length] > 28) {
    const NSRange whole = [line rangeOfComposedCharacterSequenceAtIndex:26];
    line = [[line substringToIndex:whole.location] stringByAppendingString:@"…"];
  }
  return [NSString stringWithFormat:@"“%@”", line];
}

@implementation LineAnnouncer

- (id)initWithLog:(EventLog *)log changed:(std::function<void()>)changed {
  self = [super init];
  if (!self) return nil;
  _log = [log retain];
  _changed = std::move(changed);
  return self;
}

- (void)dealloc {
  [_log release];
  [super dealloc];
}

- (void)announce:(NSString *)event about:(NSString *)text color:(NSColor *)color {
  [_log addEvent:event from:text color:color];
  _changed();
}

- (void)textViewDidReturn:(NSNotification *)notification {
  [self announce:@"DidReturn"
           about:quoted([[notification userInfo] objectForKey:@"OvString"])
           color:GalleryAccentColor()];
}

- (void)textViewWillPasteString:(NSNotification *)notification {
  NSArray *lines = [[notification userInfo] objectForKey:@"OvStrings"];
  [self announce:@"WillPasteString"
           about:[NSString
                     stringWithFormat:@"%lu with text", static_cast<unsigned long>([lines count])]
           color:GalleryAccentColor()];
  for (NSUInteger i = 0; i < std::min<NSUInteger>(3, [lines count]); ++i) {
    [self announce:@"" about:quoted([lines objectAtIndex:i]) color:nil];
  }
}

- (void)textViewBecomeFirstResponder:(NSNotification *)notification {
  (void)notification;
  [self announce:@"BecomeFirstResponder" about:@"" color:nil];
}

- (void)textViewResignFirstResponder:(NSNotification *)notification {
  [self announce:@"ResignFirstResponder"
           about:quoted([[notification userInfo] objectForKey:@"OvString"])
           color:nil];
}

- (void)textViewDidBeginEditing:(NSNotification *)notification {
  (void)notification;
  [self announce:@"DidBeginEditing" about:@"" color:nil];
}

- (void)textViewDidEndEditing:(NSNotification *)notification {
  (void)notification;
  [self announce:@"DidEndEditing" about:@"" color:nil];
}

- (void)textViewDidChange:(NSNotification *)notification {
  (void)notification;
  _changed();
}

- (void)textViewDidBecomeValid:(NSNotification *)notification {
  (void)notification;
  [self announce:@"DidBecomeValid" about:@"" color:GalleryColor(0x147D3F)];
}

- (void)textViewDidBecomeInvalid:(NSNotification *)notification {
  (void)notification;
  [self announce:@"DidBecomeInvalid" about:@"" color:GalleryWarningColor()];
}

@end
