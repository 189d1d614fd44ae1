#import "forms/FormFields.h"

#import "forms/FlatComboBoxes.h"
#import "forms/FormField.h"
#import "shell/GalleryStyle.h"

static const unsigned kNameBytes = 16;
static const unsigned kMemoLength = 20;

static const NSRect kAnywhere = {{0, 0}, {200, 22}};

static NSDecimalNumber *decimal(unsigned value) {
  return [NSDecimalNumber decimalNumberWithMantissa:value exponent:0 isNegative:NO];
}

static id validated(Class controlClass, OvTextValidator *validator, unsigned most) {
  id control = [[[controlClass alloc] initWithFrame:kAnywhere] autorelease];
  [validator setMaxLength:most];
  [control setTextValidator:validator];
  [validator setDefaultTextColor:GalleryTextColor()];
  [validator setAltTextColor:GalleryWarningColor()];
  return control;
}

static id filtered(Class controlClass, OvVPFormatter *formatter, unsigned most) {
  id control = [[[controlClass alloc] initWithFrame:kAnywhere] autorelease];
  if (most > 0) [formatter setMaximum:decimal(most)];
  [control setFormatter:[formatter autorelease]];
  return control;
}

static FormField *entry(NSString *name, NSString *title, NSString *hint, NSTextField *control) {
  return [[[FormField alloc] initWithName:name title:title hint:hint control:control] autorelease];
}

OvTextField *FormMakeHeader(NSString *text) {
  OvTextField *header = [[[OvTextField alloc] initWithFrame:kAnywhere] autorelease];
  [header setEmboss:YES];
  [header setFont:GalleryBoldFont(16)];
  [header setTextColor:GalleryColor(0x4A5568)];
  [header setEmbossColor:[NSColor colorWithCalibratedWhite:1 alpha:0.9]];
  [header setStringValue:text];
  return header;
}

static FormField *postalCode() {
  OvTextValidator *digits = [OvNumberTextValidator textValidator];
  [digits setMoveNextKeyView:YES];
  return entry(@"postal", @"Postal code", @"7 digits; moves on when full",
               validated([OvTextField class], digits, 7));
}

static FormField *memberNumber() {
  OvTextValidator *digits = [OvNumberTextValidator textValidator];
  [digits setMoveNextKeyView:YES];
  return entry(@"member", @"Member number", @"4 digits; moves on when full",
               validated([OvTextField class], digits, 4));
}

static FormField *romanisedName() {
  return entry(@"roman", @"Romanised name", @"Letters from A to Z; others are removed",
               validated([OvTextField class], [OvAlphabetTextValidator textValidator], 24));
}

static FormField *nameInBytes() {
  return entry(@"name", @"Name", @"",
               validated([OvTextField class], [OvSjisTextValidator textValidator], kNameBytes));
}

static FormField *memo() {
  OvTextValidator *length = [OvTextValidator textValidator];
  [length setAllowToInputOverLength:YES];
  return entry(@"memo", @"Memo", @"", validated([OvTextField class], length, kMemoLength));
}

static FormField *fileName() {
  OvVPPathFormatter *path = [[OvVPPathFormatter alloc] init];
  [path setAllowPeriodAtTheHead:NO];
  return entry(@"path", @"File name", @"No colon, no leading period; up to 24",
               filtered([OvVPTextField class], path, 24));
}

static FormField *accessCode() {
  OvVPTextField *field = filtered([OvVPTextField class], [[OvVPNumberFormatter alloc] init], 6);
  [field setMaximum:decimal(6)];
  [field setMoveNextKeyView:YES];
  return entry(@"code", @"Access code", @"6 digits; moves on when full", field);
}

static FormField *folder() {
  FlatComboBox *box = validated([FlatComboBox class], [OvPathTextValidator textValidator], 32);
  [box addItemsWithObjectValues:@[ @"Documents", @"Letters", @"Pictures", @"Receipts" ]];
  return entry(@"folder", @"Folder", @"Choose one, or type one without a colon", box);
}

static FormField *currency() {
  FlatVPComboBox *box = filtered([FlatVPComboBox class], [[OvVPAlphabetFormatter alloc] init], 3);
  [box addItemsWithObjectValues:@[ @"CHF", @"EUR", @"GBP", @"JPY", @"USD" ]];
  return entry(@"currency", @"Currency", @"Choose one, or type three letters", box);
}

NSArray *FormMakeFields() {
  NSArray *fields = @[
    postalCode(), memberNumber(), romanisedName(), nameInBytes(), memo(), fileName(), accessCode(),
    folder(), currency()
  ];
  for (FormField *field in fields) FormUpdateHint(field);
  return fields;
}

NSString *FormExample(NSString *fieldName) {
  return [@{
    @"postal" : @"1000001",
    @"member" : @"4711",
    @"roman" : @"Anna",
    // Seven of these letters take two bytes each. Every font has them.
    @"name" : @"Анна Ким",
    @"memo" : @"Calls on Fridays",
    @"path" : @"card.pdf",
    @"code" : @"123456",
    @"folder" : @"Documents",
    @"currency" : @"JPY",
  } objectForKey:fieldName]
             ?: @"";
}

// As the rule for bytes counts them: the lowest limit that it lets the text pass.
static unsigned bytesIn(NSString *text) {
  if ([text length] == 0) return 0;
  OvSjisTextValidator *rule = [OvSjisTextValidator textValidator];
  unsigned count = 1;
  for (; count < 2 * [text length]; ++count) {
    [rule setMaxLength:count];
    if ([rule validString:text]) break;
  }
  return count;
}

NSString *FormUpdateHint(FormField *field) {
  NSString *text = [field text];
  if ([[field name] isEqual:@"name"]) {
    [field setHint:[NSString
                       stringWithFormat:@"%u of %u bytes in Shift-JIS", bytesIn(text), kNameBytes]
           warning:NO];
  }
  if (![[field name] isEqual:@"memo"]) return nil;
  const BOOL tooLong = [text length] > kMemoLength;
  [field setHint:[NSString stringWithFormat:@"%lu of %u characters%@",
                                            static_cast<unsigned long>([text length]), kMemoLength,
                                            tooLong ? @": shorten it to go on" : @""]
         warning:tooLong];
  return tooLong ? @"The memo is too long, and is not left before it is shortened." : nil;
}
