// The rules for text: on what a person types into a field, and on texts of 10 MB.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvAppKit.h>

#include <vector>

#include "Benchmarks.h"
#include "Measure.h"

namespace {

// For loops whose result nobody else wants.
volatile NSUInteger sink;

OvTextValidator *validator(Class rule, uint32_t limit) {
  OvTextValidator *made = [rule textValidator];
  [made setMaxLength:limit];
  return made;
}

NSString *repeated(unichar unit, NSUInteger length) {
  const std::vector<unichar> units(length, unit);
  return [NSString stringWithCharacters:units.data() length:length];
}

struct Rule {
  const char *name;
  Class made;
  unichar unit;
};

std::vector<Rule> rules() {
  return {{"length", [OvTextValidator class], 'a'},
          {"number", [OvNumberTextValidator class], '7'},
          {"alphabet", [OvAlphabetTextValidator class], 'a'},
          {"path", [OvPathTextValidator class], 'a'},
          {"bytes", [OvSjisTextValidator class], 0x3042}};
}

// A field in a window with the keyboard, for what a keystroke costs without any rule.
struct Field {
  NSWindow *window;
  NSTextField *field;
  NSTextView *editor;

  Field() {
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 300, 60)
                                         styleMask:NSTitledWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    field = [[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 280, 24)];
    [[window contentView] addSubview:field];
    [window makeKeyAndOrderFront:nil];
    [window makeFirstResponder:field];
    editor = (NSTextView *)[field currentEditor];
  }
  ~Field() {
    [window orderOut:nil];
    [window release];
    [field release];
  }
  Field(const Field &) = delete;
  Field &operator=(const Field &) = delete;

  // The tenth character.
  void type() const {
    [editor setString:@"123456789"];
    [editor insertText:@"0"];
  }
  double keystroke() const {
    const double both = bench::median([&] {
      @autoreleasepool {
        type();
      }
    });
    return both - bench::median([&] {
             @autoreleasepool {
               [editor setString:@"123456789"];
             }
           });
  }
};

void tenCharacters() {
  bench::heading("A field of ten characters");
  Field field;
  const double keystroke = field.keystroke();
  bench::row("NSTextField: a keystroke without a rule", keystroke);

  NSNumberFormatter *platform = [[[NSNumberFormatter alloc] init] autorelease];
  bench::row("NSNumberFormatter: its check of a partial string", bench::median([&] {
               @autoreleasepool {
                 NSString *changed = nil, *error = nil;
                 [platform isPartialStringValid:@"1234567890"
                               newEditingString:&changed
                               errorDescription:&error];
               }
             }));

  for (const Rule &rule : rules()) {
    NSString *text = repeated(rule.unit, 10);
    OvTextValidator *made = validator(rule.made, 40);
    const double time = bench::median([&] { sink = [made validateString:text] >= 0; });
    bench::bounded(std::string("validator, ") + rule.name, time, 0.5);
    bench::ratio(std::string("validator, ") + rule.name + " : keystroke", time / keystroke, 0.05);
  }

  for (Class made : {[OvVPNumberFormatter class], [OvVPSjisFormatter class]}) {
    OvVPFormatter *formatter = [[[made alloc] init] autorelease];
    [formatter setMaximum:[NSDecimalNumber decimalNumberWithString:@"40"]];
    const double time = bench::median([&] {
      NSString *text = @"1234567890";
      NSRange selection = NSMakeRange(10, 0);
      sink = [formatter isPartialStringValid:&text
                       proposedSelectedRange:&selection
                              originalString:@"123456789"
                       originalSelectedRange:NSMakeRange(9, 0)
                            errorDescription:nullptr];
    });
    bench::row([NSStringFromClass(made) UTF8String], time);
  }
}

// Reading the units of a text a block at a time, and nothing else.
void readUnits(NSString *text) {
  unichar block[512];
  NSUInteger sum = 0;
  const NSUInteger length = [text length];
  for (NSUInteger start = 0; start < length; start += 512) {
    const NSUInteger count = MIN(length - start, NSUInteger{512});
    [text getCharacters:block range:NSMakeRange(start, count)];
    for (NSUInteger i = 0; i < count; ++i) sum += block[i];
  }
  sink = sum;
}

void tenMegabytes() {
  bench::heading("A text of 10 MB, beside a bare loop over its units");
  for (const Rule &rule : rules()) {
    if (rule.made == [OvTextValidator class]) continue;
    @autoreleasepool {
      NSString *text = repeated(rule.unit, 5 << 20);
      OvTextValidator *made = validator(rule.made, UINT32_MAX);
      const auto judge = [&] { sink = [made validateString:text] >= 0; };
      bench::row(std::string("validator, ") + rule.name, bench::median(judge, 5));
      bench::ratio(std::string("validator, ") + rule.name + " : bare loop",
                   bench::medianRatio(judge, [&] { readUnits(text); }, 5), 6);
    }
  }
}

void lines() {
  bench::heading("The lines of a text of 10 MB, beside a bare loop over its units");
  @autoreleasepool {
    // 100 units a line, so 52,428 lines.
    std::vector<unichar> units(5 << 20, 'x');
    for (size_t i = 99; i < units.size(); i += 100) units[i] = '\n';
    NSString *text = [NSString stringWithCharacters:units.data() length:units.size()];
    const auto bare = [&] { readUnits(text); };
    bench::row("bare loop", bench::median(bare, 5));
    const auto count = [&] { sink = OvTextViewGetLineCount(text); };
    bench::row("count the lines", bench::median(count, 5));
    bench::ratio("count the lines : bare loop", bench::medianRatio(count, bare, 9), 2);
    const auto fetch = [&] {
      @autoreleasepool {
        sink = [OvTextViewGetIndexedLineString(text, 50000) length];
      }
    };
    bench::row("fetch line 50,000", bench::median(fetch, 5));
    bench::ratio("fetch line 50,000 : bare loop", bench::medianRatio(fetch, bare, 9), 2);
    const auto locate = [&] { sink = OvTextViewGetLineIndexFromLocation(text, 5 << 20); };
    bench::row("the line of the last character", bench::median(locate, 5));
    bench::ratio("the line of the last character : bare loop", bench::medianRatio(locate, bare, 9),
                 2);
  }
}

}  // namespace

void bench::text() {
  tenCharacters();
  tenMegabytes();
  lines();
}
