// The settings of the Pictures page: everything that the grid lets a host choose.

#import "pages/Pictures.h"
#import "pictures/PictureCell.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

struct NamedColor {
  NSString *name;
  unsigned rgb;
};
static const NamedColor backgrounds[] = {
    {@"White", 0xFFFFFF}, {@"Mist", 0xEEF2F6}, {@"Sand", 0xF7F1E5}, {@"Mint", 0xE9F5EE}};
static const NamedColor lineColors[] = {
    {@"Silver", 0xD9DEE6}, {@"Slate", 0x667085}, {@"Blue", 0x2F6FDE}, {@"Rust", 0xC4554D}};

template <std::size_t N>
static NSArray *namesOf(const NamedColor (&colors)[N]) {
  NSMutableArray *names = [NSMutableArray array];
  for (const NamedColor &color : colors) [names addObject:color.name];
  return names;
}

@implementation PicturesPage (Settings)

- (void)fillSettings:(GallerySettings *)settings {
  [self addLayout:settings];
  [self addLines:settings];
  [self addSelection:settings];
  [self addBehaviour:settings];
}

- (void)addLayout:(GallerySettings *)settings {
  [settings addColumn:@"Layout"];
  [settings
      addPopUp:@"Class"
        titles:@[ @"HXMatrixView", @"OvMatrixView" ]
      selected:0
       changed:[self](NSInteger index) {
         [self useGridOfClass:index == 0 ? [PictureGrid class] : [PictureGridWithOtherRules class]];
       }];
  [settings addPopUp:@"Fills"
              titles:@[ @"the width", @"the height" ]
            selected:0
             changed:[self](NSInteger index) {
               [_grid setAutoFitHorizentally:index == 1];
               [self layoutChanged];
             }];
  [settings addSlider:@"Cell width"
                 from:96
                   to:288
                value:_cellWidth
              changed:[self](double value) {
                _cellWidth = value;
                [_grid setCellSize:[PictureCell cellSizeForWidth:value]];
                [self layoutChanged];
              }];
  [settings addSlider:@"Spacing"
                 from:0
                   to:40
                value:[_grid intercellSpacing].width
              changed:[self](double value) {
                [_grid setIntercellSpacing:NSMakeSize(value, value)];
                [self layoutChanged];
              }];
  [settings addPopUp:@"Background"
              titles:namesOf(backgrounds)
            selected:0
             changed:[self](NSInteger index) {
               [_grid setBackgroundColor:GalleryColor(backgrounds[index].rgb)];
               [_scroll setBackgroundColor:[_grid backgroundColor]];
               [_grid setNeedsDisplay:YES];
             }];
}

- (void)layoutChanged {
  [self loadVisibleThumbnails];
  [self changed];
}

- (void)setLineBit:(NSUInteger)bit on:(BOOL)on {
  const NSUInteger mask = [_grid gridStyleMask];
  [_grid setGridStyleMask:on ? mask | bit : mask & ~bit];
  [_grid setNeedsDisplay:YES];
}

- (void)addLines:(GallerySettings *)settings {
  [settings addColumn:@"Grid lines"];
  [settings addPopUp:@"Lines"
              titles:@[ @"none", @"vertical", @"horizontal", @"both" ]
            selected:0
             changed:[self](NSInteger index) {
               [self setLineBit:HXMatrixViewVerticalGridLines on:(index & 1) != 0];
               [self setLineBit:HXMatrixViewHorizontalGridLines on:(index & 2) != 0];
             }];
  [settings addPopUp:@"Colour"
              titles:namesOf(lineColors)
            selected:0
             changed:[self](NSInteger index) {
               [_grid setGridColor:GalleryColor(lineColors[index].rgb)];
               [_grid setNeedsDisplay:YES];
             }];
  [settings addSlider:@"Width"
                 from:1
                   to:8
                value:[_grid gridLineWidth]
              changed:[self](double value) {
                [_grid setGridLineWidth:value];
                [_grid setNeedsDisplay:YES];
              }];
  [settings addCheckBox:@"Only inside the grid"
                     on:NO
                changed:[self](BOOL on) { [self setLineBit:HXMatrixViewInsideGridLines on:on]; }];
  [settings addCheckBox:@"Shadow"
                     on:NO
                changed:[self](BOOL on) {
                  NSShadow *shadow = [[[NSShadow alloc] init] autorelease];
                  [shadow setShadowOffset:NSMakeSize(1, -2)];
                  [shadow setShadowBlurRadius:3];
                  [shadow setShadowColor:GalleryColor(0x1F2633, 0.4)];
                  [_grid setGridShadow:on ? shadow : nil];
                  [_grid setNeedsDisplay:YES];
                }];
}

- (void)addSelection:(GallerySettings *)settings {
  NSArray *titles = @[ @"a block", @"a run" ];
  [settings addColumn:@"Selection"];
  [settings addPopUp:@"Shift-click"
              titles:titles
            selected:[_grid multipleSelectionBehavior]
             changed:[self](NSInteger index) {
               [_grid setMultipleSelectionBehavior:static_cast<int>(index)];
             }];
  [settings addPopUp:@"with Option"
              titles:titles
            selected:[_grid alternateMultipleSelectionBehavior]
             changed:[self](NSInteger index) {
               [_grid setAlternateMultipleSelectionBehavior:static_cast<int>(index)];
             }];
  [settings addPopUp:@"Drag"
              titles:titles
            selected:[_grid multipleSelectionBehaviorForDragging]
             changed:[self](NSInteger index) {
               [_grid setMultipleSelectionBehaviorForDragging:static_cast<int>(index)];
             }];
  [settings addPopUp:@"with Option"
              titles:titles
            selected:[_grid alternateMultipleSelectionBehaviorForDragging]
             changed:[self](NSInteger index) {
               [_grid setAlternateMultipleSelectionBehaviorForDragging:static_cast<int>(index)];
             }];
}

- (void)addBehaviour:(GallerySettings *)settings {
  [settings addColumn:@"Behaviour"];
  [settings addCheckBox:@"Several can be selected"
                     on:[_grid allowsMultipleSelection]
                changed:[self](BOOL on) { [_grid setAllowsMultipleSelection:on]; }];
  [settings addCheckBox:@"None need be selected"
                     on:[_grid allowsEmptySelection]
                changed:[self](BOOL on) { [_grid setAllowsEmptySelection:on]; }];
  [settings addCheckBox:@"Pictures can be dragged"
                     on:[_grid allowsBeginDragging]
                changed:[self](BOOL on) { [_grid setAllowsBeginDragging:on]; }];
  [settings addCheckBox:@"Follows the pointer"
                     on:_hoverTracking
                changed:[self](BOOL on) {
                  _hoverTracking = on;
                  [_grid setMouseTrackingEnabled:on];
                  [_grid setNeedsDisplay:YES];
                }];
}

@end
