#import "panes/InspectorRows.h"

#import <OvAppKit/OvFlippedView.h>

#import "shell/GalleryStyle.h"

NSView *InspectorRow(NSString *name, NSString *value) {
  GalleryBox *row = [GalleryBox boxWithFill:nil border:nil];
  [row setFrame:NSMakeRect(0, 0, InspectorWidth, 26)];
  NSTextField *label = GalleryLabel(name, GalleryFont(12), GalleryQuietTextColor());
  [label setFrameOrigin:NSMakePoint(InspectorIndent, 4)];
  NSTextField *text = GalleryLabel(value, GalleryFont(12), GalleryTextColor());
  [text setFrameOrigin:NSMakePoint(130, 4)];
  [row addSubview:label];
  [row addSubview:text];
  return row;
}

NSView *InspectorStack(NSArray *rows) {
  OvFlippedView *view = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  CGFloat y = 6;
  for (NSView *row in rows) {
    [row setFrameOrigin:NSMakePoint(NSMinX([row frame]), y)];
    [view addSubview:row];
    y += NSHeight([row frame]);
  }
  [view setFrameSize:NSMakeSize(InspectorWidth, y + 10)];
  return view;
}

NSView *InspectorNotes() {
  GalleryBox *frame = [GalleryBox boxWithFill:GalleryPanelColor() border:GalleryLineColor()];
  [frame setFrame:NSMakeRect(InspectorIndent, 0, InspectorWidth - InspectorIndent - GalleryMargin,
                             90)];
  NSTextView *notes =
      [[[NSTextView alloc] initWithFrame:NSInsetRect([frame bounds], 1, 1)] autorelease];
  [notes setString:@"Taken from the bridge. The light lasted for three minutes."];
  [notes setFont:GalleryFont(12)];
  [notes setTextColor:GalleryTextColor()];
  [frame addSubview:notes];
  return frame;
}
