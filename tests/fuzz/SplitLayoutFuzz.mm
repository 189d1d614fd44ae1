// orientation, collapsed panes (a bit each), then a saved layout as a tree of tagged values

#import <OvAppKit/OvAppKit.h>

#include <array>
#include <bit>
#include <cmath>

#include "FuzzInput.h"
#include "split/StoredLayout.h"

using namespace ov::fuzz;

namespace {

constexpr NSUInteger kPanes = 3;

class Tree {
 public:
  explicit Tree(Input input) : input_(input) {}

  // A layout with what it should have, unless the input says otherwise.
  id layout() {
    const uint8_t odd = input_.byte();
    if (odd == 0xFF) return value(0);
    NSMutableDictionary *layout = [NSMutableDictionary dictionary];
    put(layout, @"Format Version", odd & 1 ? value(0) : (id) @1);
    put(layout, @"SplitView IsVertical", odd & 2 ? value(0) : @(input_.flag()));
    NSMutableArray *entries = [NSMutableArray array];
    for (int n = input_.byte() % 6; n > 0; --n) [entries addObject:entry()];
    put(layout, @"Subviews", odd & 4 ? value(0) : entries);
    return layout;
  }

 private:
  static void put(NSMutableDictionary *dictionary, id key, id object) {
    if (object != nil) [dictionary setObject:object forKey:key];
  }

  id entry() {
    const uint8_t odd = input_.byte();
    if (odd & 1) return value(1) ?: [NSNull null];
    NSMutableDictionary *entry = [NSMutableDictionary dictionary];
    put(entry, @"Subview Frame", odd & 2 ? value(1) : rectangle());
    put(entry, @"Subview Collapsed", odd & 4 ? value(1) : @(input_.flag()));
    return entry;
  }

  double number() {
    const uint64_t low = input_.number32();
    return input_.flag() ? static_cast<double>(static_cast<int32_t>(low)) / 8
                         : std::bit_cast<double>(low | uint64_t{input_.number32()} << 32);
  }

  id rectangle() {
    const char *form = input_.flag() ? "{{%.17g, %.17g}, {%.17g, %.17g}}"
                                     : "{x = %g; y = %g; width = %g; height = %g}";
    const double x = number();
    const double y = number();
    const double width = number();
    return [NSString stringWithFormat:[NSString stringWithUTF8String:form], x, y, width, number()];
  }

  // Any value; nil for none.
  id value(int depth) {
    const uint8_t tag = input_.byte();
    switch (depth > 8 ? tag % 8 : tag % 10) {
      case 0:
        return nil;
      case 1:
        return [NSNull null];
      case 2:
        return @(input_.flag());
      case 3:
        return [NSNumber numberWithDouble:number()];
      case 4:
        return [NSNumber numberWithUnsignedInt:input_.number32()];
      case 5:
        return [NSDate dateWithTimeIntervalSinceReferenceDate:input_.number16()];
      case 6:
        return rectangle();
      case 7: {
        std::array<char, 64> bytes;
        const size_t length = input_.byte() % bytes.size();
        for (size_t i = 0; i < length; ++i) bytes[i] = static_cast<char>(input_.byte());
        return [[[NSString alloc] initWithBytes:bytes.data()
                                         length:length
                                       encoding:NSISOLatin1StringEncoding] autorelease];
      }
      case 8: {
        NSMutableArray *array = [NSMutableArray array];
        for (int n = input_.byte() % 4; n > 0; --n) {
          if (id element = value(depth + 1)) [array addObject:element];
        }
        return array;
      }
      default:
        return input_.flag() ? entry() : layout();
    }
  }

  Input input_;
};

void requireReadable(NSDictionary *saved, OvSplitView *split) {
  NSArray *entries = [saved objectForKey:@"Subviews"];
  OV_REQUIRE([entries count] == kPanes);
  for (NSUInteger i = 0; i < kPanes; ++i) {
    const auto read =
        ov::rectFromText([[[entries objectAtIndex:i] objectForKey:@"Subview Frame"] UTF8String]);
    const NSRect frame = [[[split subviews] objectAtIndex:i] frame];
    OV_REQUIRE(read.has_value());
    OV_REQUIRE(NSEqualRects(NSMakeRect(read->x, read->y, read->width, read->height), frame));
  }
}

void check(Input input) {
  OvSplitView *split = [[[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease];
  const BOOL vertical = input.flag();
  [split setVertical:vertical];
  for (NSUInteger i = 0; i < kPanes; ++i) {
    [split addSubview:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 96, 60)] autorelease]];
  }
  [split resizeSubviewsWithOldSize:[split bounds].size];
  const uint8_t collapsed = input.byte();
  for (uint32_t i = 0; i < kPanes; ++i) {
    [split setSubviewAtIndex:i isCollapsed:(collapsed >> i) & 1];
  }

  id layout = Tree(input).layout();
  [split setLayoutFromString:layout];
  OV_REQUIRE(NSEqualSizes([split frame].size, NSMakeSize(300, 200)));
  OV_REQUIRE([[split subviews] count] == kPanes);
  OV_REQUIRE([[split valueForKey:@"dividers"] count] == kPanes - 1);
  id version =
      [layout isKindOfClass:[NSDictionary class]] ? [layout objectForKey:@"Format Version"] : nil;
  if (version == nil) OV_REQUIRE([split isVertical] == vertical);
  bool anyShown = false;
  for (uint32_t i = 0; i < kPanes; ++i) {
    const NSRect frame = [[[split subviews] objectAtIndex:i] frame];
    OV_REQUIRE(std::isfinite(frame.size.width) && std::isfinite(frame.size.height));
    OV_REQUIRE(frame.size.width >= 0 && frame.size.height >= 0);
    if ([split isSubviewCollapsedAtIndex:i]) {
      OV_REQUIRE(NSEqualPoints(frame.origin, NSMakePoint(1000000, 1000000)));
    } else {
      anyShown = true;
    }
  }
  OV_REQUIRE(anyShown);

  NSDictionary *saved = [split stringWithSavedLayout];
  requireReadable(saved, split);
  [split setLayoutFromString:saved];
  [split setFrameSize:NSMakeSize(500, 400)];
  OV_REQUIRE([[split valueForKey:@"dividers"] count] == kPanes - 1);
}

// The platform complains of each negative size.
void ignoreLog(NSString *message) { (void)message; }

}  // namespace

typedef void LogHandler(NSString *message);
extern "C" LogHandler *_NSLog_printf_handler;

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
  (void)count, (void)words;
  @autoreleasepool {
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{
      @"GSBackHandlesWindowDecorations" : @"NO",
      @"GSSuppressAppIcon" : @"YES"
    }];
    [NSApplication sharedApplication];
    _NSLog_printf_handler = ignoreLog;
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  @autoreleasepool {
    check(Input(data, size));
  }
  return 0;
}
