// What the grid draws, and in which order.

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#include <algorithm>

#include "matrix/GridLines.h"
#import "matrix/HXMatrixView+Private.h"
#include "platform/ShadowedLine.h"
#include "support/GeometryBridge.h"
#include "support/GraphicsGuards.h"

static const CGFloat OvDropRingWidth = 2;

// A colour with alpha. The platform's named colours ignore a request for it.
static NSColor *OvTranslucent(NSColor *color, CGFloat alpha) {
  NSColor *plain = [color colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
  return [plain != nil ? plain : color colorWithAlphaComponent:alpha];
}

@implementation HXMatrixView (HXMatrixViewDrawing)

- (void)drawRect:(NSRect)rect {
  if (backgroundColor != nil) {
    [backgroundColor set];
    NSRectFill(rect);
  }

  NSRange columns = NSMakeRange(0, _numberOfColumns);
  NSRange rows = NSMakeRange(0, _numberOfRows);
  if (!NSEqualRects(rect, [self bounds])) {
    columns = [self columnsInRect:rect];
    rows = [self rowsInRect:rect];
  }
  for (NSUInteger row = rows.location; row < NSMaxRange(rows); ++row) {
    for (NSUInteger column = columns.location; column < NSMaxRange(columns); ++column) {
      const NSUInteger index = [self itemIndexAtColumn:column row:row];
      if (index == NSNotFound) continue;
      [self drawCellWithFrame:[self frameOfCellAtColumn:column row:row] atItemIndex:index];
    }
  }

  [self drawGridLinesInRect:rect];
  if (!NSIsEmptyRect(_rubberBandFrame) && NSIntersectsRect(_rubberBandFrame, rect)) {
    [self drawRubberBandWithFrame:_rubberBandFrame];
  }
  if ([self _ovShowsRingAroundView]) {
    _state->ringFrame = [self _ovVisibleFrame];
    [self drawDraggingDestinationRingWithFrame:_state->ringFrame
                                   atItemIndex:NSNotFound
                         proposedDragOperation:proposedDragOperation];
  }
}

- (void)drawCellWithFrame:(NSRect)frame atItemIndex:(NSUInteger)index {
  [self _setupCellWithItemIndex:index forDragImage:NO];
  [dataCell drawWithFrame:frame inView:self];
  if (!_flags.dataCellRespondsToSetProposedDragOperation && proposedDragOperation != 0 &&
      draggingDestinationItemIndex == index) {
    [self drawDraggingDestinationRingWithFrame:frame
                                   atItemIndex:index
                         proposedDragOperation:proposedDragOperation];
  }
}

- (void)_setupCellWithItemIndex:(NSUInteger)index forDragImage:(BOOL)forDragImage {
  const BOOL isDropTarget = !forDragImage && draggingDestinationItemIndex == index;
  const BOOL isHovered = !forDragImage && _mouseTrackingManager != nil &&
                         [_mouseTrackingManager mouseOveredItemIndex] == index;
  if (_flags.dataCellRespondsToSetProposedDragOperation) {
    [(id)dataCell setProposedDragOperation:isDropTarget ? proposedDragOperation : 0];
  }
  if (_flags.dataCellRespondsToSetMouseOrvered) [(id)dataCell setMouseOrvered:isHovered];
  [dataCell setHighlighted:!forDragImage && [_selectionInfo containsIndex:index]];
  [dataCell setObjectValue:[dataSource matrixView:self
                               objectValueForCell:dataCell
                                      atItemIndex:index]];
}

- (void)drawGridLinesInRect:(NSRect)rect {
  if (gridStyleMask == HXMatrixViewGridNone) return;
  ov::GraphicsStateScope state;
  ov::DefaultLineWidthScope lineWidth(gridLineWidth);
  NSColor *color = gridColor != nil ? gridColor : [NSColor gridColor];
  [color set];

  const BOOL flipped = [self isFlipped];
  const bool insideOnly = gridStyleMask >= HXMatrixViewInsideGridLines;
  ov::GridShadowReach acrossColumns;
  if (gridShadow != nil) {
    const NSSize offset = [gridShadow shadowOffset];
    acrossColumns = {{offset.width, flipped ? -offset.height : offset.height},
                     static_cast<ov::Scalar>([gridShadow shadowBlurRadius])};
  }
  const ov::GridShadowReach acrossRows = {{acrossColumns.offset.height, acrossColumns.offset.width},
                                          acrossColumns.blur};
  const bool shadowed = gridShadow != nil;

  if (gridStyleMask & HXMatrixViewVerticalGridLines) {
    const ov::GridLineRun lines =
        ov::gridLinesIn({cellSize.width + intercellSpacing.width, intercellSpacing.width,
                         _numberOfColumns, insideOnly},
                        gridLineWidth, shadowed ? &acrossColumns : nullptr, NSMinX(rect),
                        NSMaxX(rect), NSMinY(rect), NSMaxY(rect));
    for (NSUInteger k = lines.first; k <= lines.last; ++k) {
      const CGFloat x = lines.position(k);
      OvStrokeShadowedLine(NSMakePoint(x, lines.start), NSMakePoint(x, lines.end), gridLineWidth,
                           color, gridShadow, flipped);
    }
  }
  if (gridStyleMask & HXMatrixViewHorizontalGridLines) {
    const ov::GridLineRun lines =
        ov::gridLinesIn({cellSize.height + intercellSpacing.height, intercellSpacing.height,
                         _numberOfRows, insideOnly},
                        gridLineWidth, shadowed ? &acrossRows : nullptr, NSMinY(rect), NSMaxY(rect),
                        NSMinX(rect), NSMaxX(rect));
    for (NSUInteger k = lines.first; k <= lines.last; ++k) {
      const CGFloat y = lines.position(k);
      OvStrokeShadowedLine(NSMakePoint(lines.start, y), NSMakePoint(lines.end, y), gridLineWidth,
                           color, gridShadow, flipped);
    }
  }
}

- (void)drawRubberBandWithFrame:(NSRect)frame {
  NSColor *color = [NSColor selectedControlColor];
  [OvTranslucent(color, 0.4) set];
  NSRectFillUsingOperation(NSInsetRect(frame, 1, 1), NSCompositeSourceOver);
  [OvTranslucent([color highlightWithLevel:0.6], 0.4) set];
  NSFrameRectWithWidthUsingOperation(frame, 1, NSCompositeSourceOver);
}

- (void)drawDraggingDestinationRingWithFrame:(NSRect)frame
                                 atItemIndex:(NSUInteger)index
                       proposedDragOperation:(NSUInteger)operation {
  (void)index;
  (void)operation;
  [[NSColor blackColor] set];
  NSFrameRectWithWidth(frame, OvDropRingWidth);
}

#pragma mark The ring around the visible area

- (BOOL)_ovShowsRingAroundView {
  return proposedDragOperation != 0 && draggingDestinationItemIndex == NSNotFound;
}

- (NSRect)adjustScroll:(NSRect)proposedVisibleRect {
  const NSRect visible = [self visibleRect];
  if ([self _ovShowsRingAroundView] && !NSEqualPoints(proposedVisibleRect.origin, visible.origin)) {
    [self _ovMarkRingMovedFrom:visible to:proposedVisibleRect];
  }
  return proposedVisibleRect;
}

// Along each axis on which the ring moves, its two sides across that axis sweep two strips;
// the sides along the axis stay on their lines, and what comes to light at their ends is
// drawn anyway.
- (void)_ovMarkRingMovedFrom:(NSRect)oldFrame to:(NSRect)newFrame {
  const NSRect both = NSUnionRect(oldFrame, newFrame);
  if (NSMinX(oldFrame) != NSMinX(newFrame)) {
    [self _ovMarkFromX:NSMinX(oldFrame) to:NSMinX(newFrame) inset:0 within:both];
    [self _ovMarkFromX:NSMaxX(oldFrame) to:NSMaxX(newFrame) inset:OvDropRingWidth within:both];
  }
  if (NSMinY(oldFrame) != NSMinY(newFrame)) {
    [self _ovMarkFromY:NSMinY(oldFrame) to:NSMinY(newFrame) inset:0 within:both];
    [self _ovMarkFromY:NSMaxY(oldFrame) to:NSMaxY(newFrame) inset:OvDropRingWidth within:both];
  }
}

- (void)_ovMarkFromX:(CGFloat)from to:(CGFloat)to inset:(CGFloat)inset within:(NSRect)rect {
  [self setNeedsDisplayInRect:NSMakeRect(std::min(from, to) - inset, NSMinY(rect),
                                         std::abs(from - to) + OvDropRingWidth, NSHeight(rect))];
}

- (void)_ovMarkFromY:(CGFloat)from to:(CGFloat)to inset:(CGFloat)inset within:(NSRect)rect {
  [self setNeedsDisplayInRect:NSMakeRect(NSMinX(rect), std::min(from, to) - inset, NSWidth(rect),
                                         std::abs(from - to) + OvDropRingWidth)];
}

@end
