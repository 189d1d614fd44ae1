#import <OvAppKit/HXDynamicResponder.h>
#import <OvAppKit/NSWindow+HXDynamicResponder.h>
#import <OvFoundation/HXComparison.h>

#import "controllers/ChainUpkeep.h"

@implementation HXDynamicResponder

- (id)init {
  return [self initWithWindow:nil ordering:0];
}

- (id)initWithWindow:(NSWindow *)window ordering:(NSInteger)ordering {
  self = [super init];
  if (self != nil) {
    _window = window;
    _ordering = ordering;
    if (window != nil) ov::rememberResponder(self);
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  ov::forgetResponder(self);
  if (_enabled) [_window _removeDynamicResponder:self];
  [super dealloc];
}

- (void)setWindow:(NSWindow *)window {
  if (window == _window) return;
  if (_enabled) [_window _removeDynamicResponder:self];
  _window = window;
  if (window != nil) ov::rememberResponder(self);
  if (_enabled) [_window _addDynamicResponder:self];
}

- (NSWindow *)window {
  return _window;
}

- (void)setOrdering:(NSInteger)ordering {
  if (ordering == _ordering) return;
  _ordering = ordering;
  if (_enabled) [_window _rearrangeDynamicResponders];
}

- (NSInteger)ordering {
  return _ordering;
}

- (void)setEnabled:(BOOL)flag {
  if (flag == _enabled) return;
  _enabled = flag;
  if (flag) {
    [_window _addDynamicResponder:self];
  } else {
    [_window _removeDynamicResponder:self];
  }
}

- (BOOL)enabled {
  return _enabled;
}

- (NSComparisonResult)compareOrdering:(HXDynamicResponder *)other {
  return HXCompareNSInteger(_ordering, [other ordering]);
}

@end
