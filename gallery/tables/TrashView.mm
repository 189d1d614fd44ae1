#import "tables/TrashView.h"

#import "shell/GalleryStyle.h"

NSString *const GalleryRowsType = @"GalleryTableRows";

@implementation TrashView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) [self registerForDraggedTypes:@[ GalleryRowsType ]];
  return self;
}

- (void)setRefuses:(BOOL)flag {
  _refuses = flag;
  [self setNeedsDisplay:YES];
}

- (void)setInside:(BOOL)flag {
  _inside = flag;
  [self setNeedsDisplay:YES];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  [self setInside:YES];
  return [self draggingUpdated:info];
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  (void)info;
  return _refuses ? NSDragOperationNone : NSDragOperationDelete;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
  (void)info;
  [self setInside:NO];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  return !_refuses;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  return !_refuses;
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  [self setInside:NO];
}

- (void)draggingEnded:(id<NSDraggingInfo>)info {
  (void)info;
  [self setInside:NO];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const BOOL takes = _inside && !_refuses;
  const NSRect box = NSInsetRect([self bounds], 1, 1);
  NSBezierPath *path = GalleryRoundedPath(box, 8);
  [takes ? GalleryColor(0xFBE3E1) : GalleryWindowColor() set];
  [path fill];
  [takes ? GalleryWarningColor() : GalleryColor(0xC3CAD6) set];
  const CGFloat dashes[] = {5, 4};
  if (!takes) [path setLineDash:dashes count:2 phase:0];
  [path setLineWidth:1];
  [path stroke];
  GalleryDrawText(_refuses ? @"The trash is closed" : @"Drop rows here to delete them", box,
                  GalleryFont(12), takes ? GalleryWarningColor() : GalleryQuietTextColor(),
                  NSCenterTextAlignment);
}

@end
