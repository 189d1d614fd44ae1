// System fonts, house colours and strings with one attribute.

#import <OvAppKit/NSAttributedString+OvAppKit.h>
#import <OvAppKit/NSColor+OvAppKit.h>
#import <OvAppKit/NSFont+OvAppKit.h>

#import "LiveTest.h"

namespace {

class HouseStyle : public ov::test::LiveTest {};

TEST_F(HouseStyle, Colours) {
  struct {
    NSColor *color;
    CGFloat red, green, blue;
  } const rows[] = {
      {[NSColor orvaneSelectedColor], 0.96, 0.89, 0.22},
      {[NSColor orvaneReferenceColor], 0.25, 0.25, 0.39},
      {[NSColor orvaneFrameColor], 0.86, 0.86, 0.86},
      {[NSColor orvaneBackgroundColor], 0.5, 0.5, 0.5},
  };
  for (const auto &row : rows) {
    EXPECT_TRUE([[row.color colorSpaceName] isEqual:NSCalibratedRGBColorSpace]);
    EXPECT_FLOAT_EQ([row.color redComponent], row.red);
    EXPECT_FLOAT_EQ([row.color greenComponent], row.green);
    EXPECT_FLOAT_EQ([row.color blueComponent], row.blue);
    EXPECT_EQ([row.color alphaComponent], 1);
  }
}

TEST_F(HouseStyle, FontsOfTheControlSizes) {
  NSFont *const fonts[] = {
      [NSFont regularSystemFont], [NSFont smallSystemFont], [NSFont miniSystemFont]};
  for (int size = 0; size < 3; ++size) {
    const CGFloat points = [NSFont systemFontSizeForControlSize:static_cast<NSControlSize>(size)];
    EXPECT_EQ([fonts[size] pointSize], points);
    EXPECT_TRUE([[fonts[size] fontName] isEqual:[[NSFont systemFontOfSize:points] fontName]]);
  }
  EXPECT_GT([fonts[0] pointSize], [fonts[1] pointSize]);
  EXPECT_GT([fonts[1] pointSize], [fonts[2] pointSize]);
}

TEST_F(HouseStyle, AStringInAFont) {
  NSFont *font = [NSFont boldSystemFontOfSize:17];
  NSAttributedString *string = [[[NSAttributedString alloc] initWithString:@"abc"
                                                                      font:font] autorelease];
  EXPECT_TRUE([[string string] isEqual:@"abc"]);
  NSRange range;
  NSDictionary *attributes = [string attributesAtIndex:0 effectiveRange:&range];
  EXPECT_EQ(range, NSMakeRange(0, 3));
  EXPECT_TRUE([attributes isEqual:@{NSFontAttributeName : font}]);
}

TEST_F(HouseStyle, AStringWithAParagraphStyle) {
  NSAttributedString *string =
      [[[NSAttributedString alloc] initWithString:@"abc"
                                        alignment:NSRightTextAlignment
                                    lineBreakMode:NSLineBreakByTruncatingMiddle] autorelease];
  NSRange range;
  NSDictionary *attributes = [string attributesAtIndex:0 effectiveRange:&range];
  EXPECT_EQ(range, NSMakeRange(0, 3));
  EXPECT_EQ([attributes count], 1u);
  NSMutableParagraphStyle *expected =
      [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
  [expected setAlignment:NSRightTextAlignment];
  [expected setLineBreakMode:NSLineBreakByTruncatingMiddle];
  EXPECT_TRUE([[attributes objectForKey:NSParagraphStyleAttributeName] isEqual:expected]);
  // The style that all share is not changed.
  EXPECT_NE([[NSParagraphStyle defaultParagraphStyle] alignment], NSRightTextAlignment);
}

TEST_F(HouseStyle, OddStrings) {
  NSFont *font = [NSFont systemFontOfSize:10];
  EXPECT_EQ([[[[NSAttributedString alloc] initWithString:nil font:font] autorelease] length], 0u);
  EXPECT_EQ(
      [[[[NSAttributedString alloc] initWithString:nil
                                         alignment:NSLeftTextAlignment
                                     lineBreakMode:NSLineBreakByClipping] autorelease] length],
      0u);
  NSAttributedString *plain = [[[NSAttributedString alloc] initWithString:@"abc"
                                                                     font:nil] autorelease];
  EXPECT_EQ([[plain attributesAtIndex:0 effectiveRange:NULL] count], 0u);
  const unichar half = 0xD83D;
  for (NSString *odd in @[ @"\0", [NSString stringWithFormat:@"%C", half] ]) {
    EXPECT_TRUE([[[[[NSAttributedString alloc] initWithString:odd font:font] autorelease] string]
        isEqual:odd]);
  }
  // Later changes of the string do not count.
  NSMutableString *changing = [NSMutableString stringWithString:@"x"];
  NSAttributedString *string = [[[NSAttributedString alloc] initWithString:changing
                                                                      font:font] autorelease];
  [changing appendString:@"y"];
  EXPECT_TRUE([[string string] isEqual:@"x"]);
}

TEST_F(HouseStyle, MutableStringsToo) {
  NSMutableAttributedString *string =
      [[[NSMutableAttributedString alloc] initWithString:@"abc"
                                                    font:[NSFont smallSystemFont]] autorelease];
  [string appendAttributedString:[[[NSAttributedString alloc] initWithString:@"d"] autorelease]];
  EXPECT_TRUE([[string string] isEqual:@"abcd"]);
}

}  // namespace
