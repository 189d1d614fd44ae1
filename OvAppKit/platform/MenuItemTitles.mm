#import "platform/MenuItemTitles.h"

#include <algorithm>
#include <cmath>

#import "support/Methods.h"
#import "support/Retained.h"

@interface NSCell (OvPlatformTexts)
- (NSDictionary *)_nonAutoreleasedTypingAttributes;
- (NSSize)_sizeText:(NSString *)text;
- (void)_drawText:(NSString *)text inFrame:(NSRect)frame;
- (void)_drawAttributedText:(NSAttributedString *)text inFrame:(NSRect)frame;
@end

namespace {

_OvAttributedTitle *attributed(NSString *title) {
  return [title isKindOfClass:[_OvAttributedTitle class]] ? static_cast<_OvAttributedTitle *>(title)
                                                          : nil;
}

NSDictionary *attributesOf(NSCell *cell) {
  return [[cell _nonAutoreleasedTypingAttributes] autorelease];
}

NSAttributedString *overlaid(NSString *characters, NSDictionary *defaults,
                             NSAttributedString *attributes) {
  const NSUInteger length = [characters length];
  NSMutableAttributedString *result = [[[NSMutableAttributedString alloc] init] autorelease];
  // Made of a string it would lose half a surrogate pair, and all the rest.
  [result replaceCharactersInRange:NSMakeRange(0, 0) withString:characters];
  [result setAttributes:defaults range:NSMakeRange(0, length)];
  NSRange run = NSMakeRange(0, 0);
  for (NSUInteger at = 0; at < length; at = NSMaxRange(run)) {
    [result addAttributes:[attributes attributesAtIndex:at effectiveRange:&run] range:run];
  }
  return result;
}

// What a row has above and below its text, as in the platform's own menus.
constexpr CGFloat kRowMargin = 3;

using HeightForItem = CGFloat(id, SEL, NSInteger);
HeightForItem *platformHeight = nullptr;

// The platform's rows have one height, that of the menu's font.
CGFloat heightForItem(id self, SEL selector, NSInteger index) {
  const CGFloat height = platformHeight(self, selector, index);
  if ([self isHorizontal]) return height;
  NSMenuItemCell *cell = [self menuItemCellForItemAtIndex:index];
  _OvAttributedTitle *title = attributed([[cell menuItem] title]);
  if (title == nil) return height;
  return std::max(height,
                  std::ceil([title sizeWithDefaults:attributesOf(cell)].height) + kRowMargin);
}

void letRowsGrow() {
  static const bool installed = [] {
    Method method = class_getInstanceMethod([NSMenuView class], @selector(heightForItem:));
    if (method == nullptr) return false;
    platformHeight = ov::asFunction<HeightForItem>(method_getImplementation(method));
    method_setImplementation(method, ov::asMethod(heightForItem));
    return true;
  }();
  (void)installed;
}

}  // namespace

@implementation _OvAttributedTitle

- (id)initWithAttributedTitle:(NSAttributedString *)title {
  self = [super init];
  if (self == nil) return nil;
  // The characters may be those of another title: its attributes are not to be kept for them.
  _characters = [title string];
  while (attributed(_characters) != nil) {
    _characters = [[attributed(_characters) attributedTitle] string];
  }
  _characters = [_characters copy];
  _title = [overlaid(_characters, nil, title) copy];
  return self;
}

- (void)dealloc {
  [_title release];
  [_characters release];
  [_sizedFont release];
  [super dealloc];
}

- (NSAttributedString *)attributedTitle {
  return _title;
}

- (NSAttributedString *)titleWithDefaults:(NSDictionary *)attributes {
  return overlaid(_characters, attributes, _title);
}

- (NSSize)sizeWithDefaults:(NSDictionary *)attributes {
  NSFont *font = [attributes objectForKey:NSFontAttributeName];
  if (_sizedFont == nil || _sizedFont != font) {
    OvReplaceRetained(&_sizedFont, font);
    _size = [[self titleWithDefaults:attributes] size];
  }
  return _size;
}

- (NSUInteger)length {
  return [_characters length];
}

- (unichar)characterAtIndex:(NSUInteger)index {
  return [_characters characterAtIndex:index];
}

- (void)getCharacters:(unichar *)buffer range:(NSRange)range {
  [_characters getCharacters:buffer range:range];
}

// A copied title stays attributed. Archives keep the characters, as of every string.
- (id)copyWithZone:(NSZone *)zone {
  (void)zone;
  return [self retain];
}

@end

// A category's methods come before those of the class, as is meant here.
#pragma clang diagnostic ignored "-Wobjc-protocol-method-implementation"

@interface NSMenuItem (OvAttributedTitles)
@end

@implementation NSMenuItem (OvAttributedTitles)

- (NSAttributedString *)attributedTitle {
  return [attributed([self title]) attributedTitle];
}

- (void)setAttributedTitle:(NSAttributedString *)title {
  letRowsGrow();
  NSString *text = nil;
  if (title != nil) {
    text = [[[_OvAttributedTitle alloc] initWithAttributedTitle:title] autorelease];
  } else if ((title = [self attributedTitle]) != nil) {
    text = [title string];
  } else {
    return;
  }
  [self setTitle:text];
  if (_title == text) return;
  // Equal characters are no new title to the platform.
  OvReplaceRetained(&_title, text);
  [_menu itemChanged:self];
}

@end

@interface NSMenuItemCell (OvAttributedTitles)
@end

@implementation NSMenuItemCell (OvAttributedTitles)

- (NSSize)_sizeText:(NSString *)text {
  _OvAttributedTitle *title = attributed(text);
  return title == nil ? [super _sizeText:text] : [title sizeWithDefaults:attributesOf(self)];
}

- (void)_drawText:(NSString *)text inFrame:(NSRect)frame {
  _OvAttributedTitle *title = attributed(text);
  if (title == nil) return [super _drawText:text inFrame:frame];
  [self _drawAttributedText:[title titleWithDefaults:attributesOf(self)] inFrame:frame];
}

@end
