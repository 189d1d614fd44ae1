// Which question the key interceptor asks about which key.

#import <OvAppKit/OvAppKit.h>

#include <set>
#include <string>

#import "LiveTest.h"

using namespace ov::test;

// Has the questions that a test allows, writes down what it is asked, and answers NO.
@interface KeyJudge : NSObject {
 @public
  std::set<std::string> *allowed;
  std::string *asked;
  id receiver;
  NSEvent *event;
  BOOL answer;
}
- (BOOL)judge:(SEL)question receiver:(id)theReceiver event:(NSEvent *)theEvent;
@end

@implementation KeyJudge
- (id)init {
  self = [super init];
  allowed = new std::set<std::string>;
  asked = new std::string;
  return self;
}
- (void)dealloc {
  delete allowed;
  delete asked;
  [super dealloc];
}
- (BOOL)respondsToSelector:(SEL)selector {
  std::string name = sel_getName(selector);
  if (name.starts_with("shouldProcess")) return allowed->contains(name);
  return [super respondsToSelector:selector];
}
- (BOOL)judge:(SEL)question receiver:(id)theReceiver event:(NSEvent *)theEvent {
  *asked += (asked->empty() ? "" : " ") + std::string(sel_getName(question));
  receiver = theReceiver;
  event = theEvent;
  return answer;
}
#define QUESTION(name)                           \
  -(BOOL)name : (id)r event : (NSEvent *)e {     \
    return [self judge:_cmd receiver:r event:e]; \
  }
QUESTION(shouldProcessUpArrowFunctionKeyDown)
QUESTION(shouldProcessDownArrowFunctionKeyDown)
QUESTION(shouldProcessLeftArrowFunctionKeyDown)
QUESTION(shouldProcessRightArrowFunctionKeyDown)
QUESTION(shouldProcessHomeArrowFunctionKeyDown)
QUESTION(shouldProcessEndArrowFunctionKeyDown)
QUESTION(shouldProcessPageUpArrowFunctionKeyDown)
QUESTION(shouldProcessPageDownArrowFunctionKeyDown)
QUESTION(shouldProcessEnterKeyDown)
QUESTION(shouldProcessReturnKeyDown)
QUESTION(shouldProcessDeleteKeyDown)
QUESTION(shouldProcessWhitespaceKeyDown)
QUESTION(shouldProcessAlphaNumericOrPunctuationKeyDown)
@end

namespace {

const std::string kSpace = "shouldProcessWhitespaceKeyDown:event:";
const std::string kText = "shouldProcessAlphaNumericOrPunctuationKeyDown:event:";

struct OwnKey {
  unichar key;
  std::string question;
};
const OwnKey kOwnKeys[] = {
    {0xF700, "shouldProcessUpArrowFunctionKeyDown:event:"},
    {0xF701, "shouldProcessDownArrowFunctionKeyDown:event:"},
    {0xF702, "shouldProcessLeftArrowFunctionKeyDown:event:"},
    {0xF703, "shouldProcessRightArrowFunctionKeyDown:event:"},
    {0xF729, "shouldProcessHomeArrowFunctionKeyDown:event:"},
    {0xF72B, "shouldProcessEndArrowFunctionKeyDown:event:"},
    {0xF72C, "shouldProcessPageUpArrowFunctionKeyDown:event:"},
    {0xF72D, "shouldProcessPageDownArrowFunctionKeyDown:event:"},
    {0x0003, "shouldProcessEnterKeyDown:event:"},
    {0x000D, "shouldProcessReturnKeyDown:event:"},
    {0x007F, "shouldProcessDeleteKeyDown:event:"},
};

NSEvent *keyDown(NSString *characters, NSEventType type = NSKeyDown) {
  return [NSEvent keyEventWithType:type
                          location:NSZeroPoint
                     modifierFlags:0
                         timestamp:0
                      windowNumber:0
                           context:nil
                        characters:@"not looked at"
       charactersIgnoringModifiers:characters
                         isARepeat:NO
                           keyCode:0];
}

NSEvent *keyDown(unichar key) { return keyDown([NSString stringWithFormat:@"%C", key]); }

class KeyIntercepter : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    judge = [[[KeyJudge alloc] init] autorelease];
    intercepter = [[[HXKeyEventIntercepter alloc] initWithDelegate:judge] autorelease];
    for (const OwnKey &row : kOwnKeys) judge->allowed->insert(row.question);
    judge->allowed->insert(kSpace);
    judge->allowed->insert(kText);
  }
  BOOL process(NSEvent *event) { return [intercepter shouldProcessKeyDown:judge event:event]; }
  // What the delegate was asked about a key; it must have been obeyed.
  std::string questionAbout(unichar key) {
    judge->asked->clear();
    judge->answer = NO;
    const BOOL answer = process(keyDown(key));
    EXPECT_EQ(answer, judge->asked->empty() ? YES : NO);
    return *judge->asked;
  }

  KeyJudge *judge = nil;
  HXKeyEventIntercepter *intercepter = nil;
};

TEST_F(KeyIntercepter, DoesNotRetainItsDelegate) {
  const NSUInteger count = [judge retainCount];
  HXKeyEventIntercepter *plain = [[[HXKeyEventIntercepter alloc] init] autorelease];
  EXPECT_EQ([plain delegate], nil);
  [plain setDelegate:judge];
  EXPECT_EQ([plain delegate], judge);
  EXPECT_EQ([intercepter delegate], judge);
  EXPECT_EQ([judge retainCount], count);
  [plain setDelegate:nil];
  EXPECT_EQ([plain delegate], nil);
}

TEST_F(KeyIntercepter, KeysWithAQuestionOfTheirOwn) {
  for (const OwnKey &row : kOwnKeys) {
    SCOPED_TRACE(row.question);
    EXPECT_EQ(questionAbout(row.key), row.question);
    judge->answer = YES;
    EXPECT_TRUE(process(keyDown(row.key)));
  }
}

TEST_F(KeyIntercepter, ThoseKeysAreNobodyElsesBusiness) {
  for (const OwnKey &row : kOwnKeys) {
    SCOPED_TRACE(row.question);
    judge->allowed->erase(row.question);
    EXPECT_EQ(questionAbout(row.key), "") << "processed, and nothing else is asked";
    judge->allowed->insert(row.question);
  }
}

TEST_F(KeyIntercepter, PassesTheReceiverAndTheEventOn) {
  NSObject *receiver = [[[NSObject alloc] init] autorelease];
  for (NSEvent *event : {keyDown(0xF700), keyDown(' '), keyDown('a')}) {
    EXPECT_FALSE([intercepter shouldProcessKeyDown:receiver event:event]);
    EXPECT_EQ(judge->receiver, receiver);
    EXPECT_EQ(judge->event, event);
    EXPECT_FALSE([intercepter shouldProcessKeyDown:nil event:event]);
    EXPECT_EQ(judge->receiver, nil);
  }
}

TEST_F(KeyIntercepter, SortsOtherKeys) {
  struct {
    const char *name;
    unichar key;
    std::string question;
  } rows[] = {
      {"space", ' ', kSpace},
      {"tab", '\t', kSpace},
      {"no-break space", 0x00A0, kSpace},
      {"ideographic space", 0x3000, kSpace},
      {"a", 'a', kText},
      {"Z", 'Z', kText},
      {"digit", '7', kText},
      {"full stop", '.', kText},
      {"bracket", '(', kText},
      {"e acute", 0x00E9, kText},
      {"hiragana", 0x3042, kText},
      {"kanji", 0x6F22, kText},
      {"ideographic full stop", 0x3002, kText},
      // A currency sign and a mathematical symbol are neither letters nor punctuation.
      {"dollar", '$', ""},
      {"plus", '+', ""},
      {"escape", 0x1B, ""},
      {"shift-tab", 0x19, ""},
      {"nul", 0, ""},
      {"Begin", 0xF72A, ""},
      {"F1", 0xF704, ""},
      {"forward delete", 0xF728, ""},
      {"first half of a pair", 0xD83D, ""},
      {"second half of a pair", 0xDE00, ""},
  };
  for (auto &row : rows) EXPECT_EQ(questionAbout(row.key), row.question) << row.name;
}

TEST_F(KeyIntercepter, WhiteSpaceIsAskedAboutOnlyAsWhiteSpace) {
  judge->allowed->erase(kSpace);
  EXPECT_EQ(questionAbout(' '), "");
  EXPECT_EQ(questionAbout('\t'), "");
  EXPECT_EQ(questionAbout('a'), kText);
  *judge->allowed = {kSpace};
  EXPECT_EQ(questionAbout('a'), "");
  EXPECT_EQ(questionAbout(' '), kSpace);
}

TEST_F(KeyIntercepter, OnlyTheFirstCharacterWithoutModifiersCounts) {
  EXPECT_FALSE(process(keyDown(@"a b")));
  EXPECT_EQ(*judge->asked, kText);
}

TEST_F(KeyIntercepter, WithoutADelegateEveryKeyIsProcessed) {
  [intercepter setDelegate:nil];
  for (unichar key : {0xF700, 0x0003, 0x0020, 0x0061, 0x001B}) {
    EXPECT_TRUE(process(keyDown(key))) << key;
  }
  EXPECT_EQ(*judge->asked, "");
}

TEST_F(KeyIntercepter, ADelegateWithoutQuestionsLetsEveryKeyThrough) {
  judge->allowed->clear();
  for (unichar key : {0xF700, 0x0003, 0x0020, 0x0061, 0x001B}) {
    EXPECT_TRUE(process(keyDown(key))) << key;
  }
}

TEST_F(KeyIntercepter, WhatIsNoKeyIsProcessedAndNobodyIsAsked) {
  EXPECT_TRUE(process(nil));
  EXPECT_TRUE(process(keyDown(@"")));
  EXPECT_TRUE(process(keyDown(static_cast<NSString *>(nil))));
  EXPECT_TRUE(process(keyDown(@"a", NSFlagsChanged)));
  NSView *view = [makeWindow(NSMakeSize(50, 50)) contentView];
  EXPECT_TRUE(process(mouseEvent(NSLeftMouseDown, view, NSMakePoint(5, 5))));
  EXPECT_TRUE(process([NSEvent otherEventWithType:NSApplicationDefined
                                         location:NSZeroPoint
                                    modifierFlags:0
                                        timestamp:0
                                     windowNumber:0
                                          context:nil
                                          subtype:0
                                            data1:0
                                            data2:0]));
  EXPECT_EQ(*judge->asked, "");
}

TEST_F(KeyIntercepter, JudgesAKeyThatWasReleased) { EXPECT_FALSE(process(keyDown(@"a", NSKeyUp))); }

}  // namespace
