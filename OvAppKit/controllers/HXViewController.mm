#import <OvAppKit/HXViewController.h>

@implementation HXViewController

- (id)initWithViewNibName:(NSString *)name {
  self = [super init];
  if (self != nil) _nibName = [name retain];
  return self;
}

- (void)dealloc {
  // The loader leaves one reference to each with the owner of the file.
  for (id object in [_nibTopLevelObjects reverseObjectEnumerator]) [object release];
  [_nibTopLevelObjects release];
  [_nibName release];
  [super dealloc];
}

- (BOOL)_instantiateNib:(NSNib *)nib {
  NSArray *objects = nil;
  BOOL loaded = NO;
  @try {
    loaded = [nib instantiateNibWithOwner:self topLevelObjects:&objects];
  } @catch (id exception) {
    (void)exception;
    loaded = NO;
  }
  // The loader also calls it a success when it found nothing in a damaged file.
  if (!loaded || (view == nil && [objects count] == 0)) {
    // What was loaded before it failed is left to itself: other outlets may point to it.
    view = nil;
    return NO;
  }
  // In a file that does not begin with the usual three stand-ins, for the owner, the first
  // responder and the application, the loader takes other objects for those and does not list
  // them; the view would go with the next pool.
  if (view != nil && [view superview] == nil && ![objects containsObject:view]) {
    objects = [objects arrayByAddingObject:[view retain]];
  }
  _nibTopLevelObjects = [objects retain];
  return YES;
}

- (void)_loadNib {
  // The lines' "%d" is fixed; the cast makes it a number where pointers are wider.
  const int name = static_cast<int>(reinterpret_cast<intptr_t>(_nibName));
  NSNib *nib = [[NSNib alloc] initWithNibNamed:_nibName bundle:[NSBundle mainBundle]];
  if (nib == nil) {
    NSLog(@"Nib not found named: %d", name);
  } else if (![self _instantiateNib:nib]) {
    NSLog(@"Failed to load nib named: %d", name);
  }
  [nib release];
}

- (NSView *)view {
  if (!_nibLoaded) {
    _nibLoaded = YES;
    [self _loadNib];
  }
  return view;
}

@end
