#import <OvAppKit/OvTableView.h>

#import "platform/DragOutcome.h"
#import "support/DelegateSubscription.h"

NSString *const OvTableViewDidEndDraggingToTrashNotification =
    @"OvTableViewDidEndDraggingToTrashNotification";

static const ov::DelegateEvent kEvents[] = {
    {&OvTableViewDidEndDraggingToTrashNotification, "tableViewDidEndDraggingToTrash:"},
};

@implementation OvTableView

- (void)dealloc {
  [self setDelegate:nil];
  [super dealloc];
}

- (void)setDelegate:(id)delegate {
  ov::unsubscribeDelegate([self delegate], self, kEvents);
  [super setDelegate:delegate];
  ov::subscribeDelegate([self delegate], self, kEvents);
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)isLocal;
  return NSDragOperationDelete;
}

- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  (void)image, (void)point;
  if (OvOutcomeOfDrag(self, operation) != NSDragOperationDelete) return;
  [[NSNotificationCenter defaultCenter]
      postNotificationName:OvTableViewDidEndDraggingToTrashNotification
                    object:self];
}

@end
