// The grid in archives: what a user configured, not what the data source supplies.

#import <OvAppKit/HXMatrixView.h>

#import "matrix/HXMatrixView+Private.h"
#include "support/Retained.h"

static const NSInteger OvMatrixViewVersion = 1;

// One archived dictionary serves both kinds of archive, so that an attribute that is
// added later is simply absent from an older one.
static NSString *const OvConfigurationKey = @"HXMatrixViewConfiguration";
static NSString *const OvDataCellKey = @"HXMatrixViewDataCell";
static NSString *const OvDataSourceKey = @"HXMatrixViewDataSource";
static NSString *const OvDelegateKey = @"HXMatrixViewDelegate";

@implementation HXMatrixView (OvArchiving)

+ (void)initialize {
  if (self == [HXMatrixView class]) [self setVersion:OvMatrixViewVersion];
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self == nil) return nil;
  [self _initialize];
  id decodedDataSource = nil;
  id decodedDelegate = nil;
  if ([coder allowsKeyedCoding]) {
    [self setDataCell:[coder decodeObjectForKey:OvDataCellKey]];
    [self _ovTakeConfiguration:[coder decodeObjectForKey:OvConfigurationKey]];
    decodedDataSource = [coder decodeObjectForKey:OvDataSourceKey];
    decodedDelegate = [coder decodeObjectForKey:OvDelegateKey];
  } else if ([coder versionForClassName:@"HXMatrixView"] == OvMatrixViewVersion) {
    [self setDataCell:[coder decodeObject]];
    [self _ovTakeConfiguration:[coder decodeObject]];
    decodedDataSource = [coder decodeObject];
    decodedDelegate = [coder decodeObject];
  }
  // Neither is retained: the archive's other objects hold them. Without a data source the
  // frame stays as it was archived, until one is connected.
  if (decodedDataSource != nil) [self setDataSource:decodedDataSource];
  if (decodedDelegate != nil) [self setDelegate:decodedDelegate];
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  [super encodeWithCoder:coder];
  if ([coder allowsKeyedCoding]) {
    [coder encodeObject:dataCell forKey:OvDataCellKey];
    [coder encodeObject:[self _ovConfiguration] forKey:OvConfigurationKey];
    [coder encodeConditionalObject:dataSource forKey:OvDataSourceKey];
    [coder encodeConditionalObject:delegate forKey:OvDelegateKey];
  } else {
    [coder encodeObject:dataCell];
    [coder encodeObject:[self _ovConfiguration]];
    [coder encodeConditionalObject:dataSource];
    [coder encodeConditionalObject:delegate];
  }
}

- (NSDictionary *)_ovConfiguration {
  NSMutableDictionary *values = [NSMutableDictionary
      dictionaryWithObjectsAndKeys:@(cellSize.width), @"cellWidth", @(cellSize.height),
                                   @"cellHeight", @(intercellSpacing.width), @"spacingWidth",
                                   @(intercellSpacing.height), @"spacingHeight", @(gridStyleMask),
                                   @"gridStyleMask", @(gridLineWidth), @"gridLineWidth",
                                   @([self autoFitHorizentally]), @"autoFitHorizentally",
                                   @([self allowsBeginDragging]), @"allowsBeginDragging",
                                   @([self allowsEmptySelection]), @"allowsEmptySelection",
                                   @([self allowsMultipleSelection]), @"allowsMultipleSelection",
                                   @([self mouseTrackingEnabled]), @"mouseTrackingEnabled",
                                   @([self multipleSelectionBehavior]),
                                   @"multipleSelectionBehavior",
                                   @([self alternateMultipleSelectionBehavior]),
                                   @"alternateMultipleSelectionBehavior",
                                   @([self multipleSelectionBehaviorForDragging]),
                                   @"multipleSelectionBehaviorForDragging",
                                   @([self alternateMultipleSelectionBehaviorForDragging]),
                                   @"alternateMultipleSelectionBehaviorForDragging", nil];
  if (backgroundColor != nil) [values setObject:backgroundColor forKey:@"backgroundColor"];
  if (gridColor != nil) [values setObject:gridColor forKey:@"gridColor"];
  if (gridShadow != nil) {
    // By its parts: the platform's own coding of a shadow differs between archives.
    [values setObject:@([gridShadow shadowOffset].width) forKey:@"shadowWidth"];
    [values setObject:@([gridShadow shadowOffset].height) forKey:@"shadowHeight"];
    [values setObject:@([gridShadow shadowBlurRadius]) forKey:@"shadowBlurRadius"];
    if ([gridShadow shadowColor] != nil) {
      [values setObject:[gridShadow shadowColor] forKey:@"shadowColor"];
    }
  }
  return values;
}

- (void)_ovTakeConfiguration:(NSDictionary *)values {
  if (![values isKindOfClass:[NSDictionary class]]) return;
  // An attribute that is absent, or is no number, leaves the initial value.
  const auto number = [&](NSString *key, double otherwise) {
    id value = [values objectForKey:key];
    return [value isKindOfClass:[NSNumber class]] ? [value doubleValue] : otherwise;
  };
  const auto color = [&](NSString *key) {
    id value = [values objectForKey:key];
    return [value isKindOfClass:[NSColor class]] ? (NSColor *)value : (NSColor *)nil;
  };
  cellSize =
      NSMakeSize(number(@"cellWidth", cellSize.width), number(@"cellHeight", cellSize.height));
  intercellSpacing = NSMakeSize(number(@"spacingWidth", intercellSpacing.width),
                                number(@"spacingHeight", intercellSpacing.height));
  id mask = [values objectForKey:@"gridStyleMask"];  // more bits than a double keeps
  if ([mask isKindOfClass:[NSNumber class]]) gridStyleMask = [mask unsignedIntegerValue];
  gridLineWidth = number(@"gridLineWidth", gridLineWidth);
  _flags.autoFitHorizentally = number(@"autoFitHorizentally", YES) != 0;
  _flags.allowsBeginDragging = number(@"allowsBeginDragging", YES) != 0;
  _flags.allowsEmptySelection = number(@"allowsEmptySelection", YES) != 0;
  _flags.allowsMultipleSelection = number(@"allowsMultipleSelection", YES) != 0;
  [self setMultipleSelectionBehavior:static_cast<int>(number(@"multipleSelectionBehavior",
                                                             [self multipleSelectionBehavior]))];
  [self setAlternateMultipleSelectionBehavior:static_cast<int>(number(
                                                  @"alternateMultipleSelectionBehavior",
                                                  [self alternateMultipleSelectionBehavior]))];
  [self setMultipleSelectionBehaviorForDragging:static_cast<int>(number(
                                                    @"multipleSelectionBehaviorForDragging",
                                                    [self multipleSelectionBehaviorForDragging]))];
  [self setAlternateMultipleSelectionBehaviorForDragging:
            static_cast<int>(number(@"alternateMultipleSelectionBehaviorForDragging",
                                    [self alternateMultipleSelectionBehaviorForDragging]))];
  [self setBackgroundColor:color(@"backgroundColor")];
  [self setGridColor:color(@"gridColor")];
  if ([values objectForKey:@"shadowBlurRadius"] != nil) {
    const auto shadow = ov::adopt([[NSShadow alloc] init]);
    [shadow.get()
        setShadowOffset:NSMakeSize(number(@"shadowWidth", 0), number(@"shadowHeight", 0))];
    [shadow.get() setShadowBlurRadius:number(@"shadowBlurRadius", 0)];
    [shadow.get() setShadowColor:color(@"shadowColor")];
    [self setGridShadow:shadow.get()];
  }
  [self setMouseTrackingEnabled:number(@"mouseTrackingEnabled", NO) != 0];
}

@end
