// Attributed titles of menu items. The platform keeps their string only and answers none; here
// an item keeps them, and the cells of menus and pop-up buttons show them. The attributed title
// travels as the item's title: a string that knows its attributes. So it goes with a copy of
// the item and ends when another title is set, and nothing else has to be kept in step.
// Removable once -[NSMenuItem attributedTitle] answers what was set, and cells draw it.

#pragma once

#import <AppKit/AppKit.h>

@interface _OvAttributedTitle : NSString {
  NSAttributedString *_title;
  NSString *_characters;  // those of _title
  NSSize _size;           // with _sizedFont where the title names none
  NSFont *_sizedFont;
}

- (id)initWithAttributedTitle:(NSAttributedString *)title;
- (NSAttributedString *)attributedTitle;
// With these attributes where the title has none of its own.
- (NSAttributedString *)titleWithDefaults:(NSDictionary *)attributes;
- (NSSize)sizeWithDefaults:(NSDictionary *)attributes;

@end
