#import "SettingsTest.h"

namespace ov::test {

HXPropertyListController *controllerWith(HXPropertyList *store, NSDictionary *defaults) {
  return [[[HXPropertyListController alloc] initWithPropertyList:store
                                                   initialValues:defaults] autorelease];
}

bool tellsOfFailedCopy(const LogCapture &log, const char *kind, size_t firstLine) {
  return log.lines().size() >= firstLine + 2 &&
         log.lines()[firstLine] == "NSURL is not an object of a property list." &&
         log.lines()[firstLine + 1] == std::string("[HXPropertyListController] Failed to create "
                                                   "deep ") +
                                           kind + " copy.";
}

testing::AssertionResult same(id actual, id expected) {
  // An empty dictionary would equal nil.
  if (actual == expected || (actual && expected && [actual isEqual:expected])) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << [[NSString stringWithFormat:@"%@ is not %@", actual, expected] UTF8String];
}

}  // namespace ov::test

@implementation OvTestStore
- (void)dealloc {
  [answeredValues release];
  [answeredSerializedValues release];
  [super dealloc];
}
- (NSMutableDictionary *)values {
  return answeredValues;
}
- (NSDictionary *)_serializedValues {
  return answeredSerializedValues;
}
- (BOOL)saveChanges {
  [[NSNotificationCenter defaultCenter] postNotificationName:HXPropertyListDidSaveValuesNotification
                                                      object:self];
  return YES;
}
- (void)discardChanges {
}
@end

@implementation OvTestController
- (void)willChangeValueForKey:(NSString *)key {
  if (lines) lines->push_back(std::string("will ") + [key UTF8String]);
  [super willChangeValueForKey:key];
}
- (void)didChangeValueForKey:(NSString *)key {
  [super didChangeValueForKey:key];
  if (lines) lines->push_back(std::string("did ") + [key UTF8String]);
}
@end

@implementation OvTestSettingsObserver
- (void)dealloc {
  [lastKeys release];
  [super dealloc];
}
- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
  (void)object, (void)change, (void)context;
  lines->push_back([keyPath UTF8String]);
}
- (void)propertyListControllerValues:(HXPropertyListControllerValues *)values
              didChangeValuesForKeys:(NSArray *)keys {
  (void)values;
  NSArray *sorted = [keys sortedArrayUsingSelector:@selector(compare:)];
  lines->push_back("report " + std::string([[sorted componentsJoinedByString:@","] UTF8String]));
  [lastKeys release];
  lastKeys = [keys retain];
}
@end
