// How a component's events reach its delegate: each event is a notification, and a delegate
// that has the matching method is made an observer of it, for this component alone.
//
//   static const ov::DelegateEvent kEvents[] = {
//     {&OvTextFieldDidChangeNotification, "textFieldDidChange:"},
//   };
//
//   - (void)setDelegate:(id)delegate {
//     ov::unsubscribeDelegate([self delegate], self, kEvents);
//     [super setDelegate:delegate];
//     ov::subscribeDelegate([self delegate], self, kEvents);
//   }
//
// Tear-down begins with [self setDelegate:nil].

#pragma once

#import <Foundation/Foundation.h>

#include <span>

namespace ov {

// A notification by the address of its exported name, which has its value only once the
// library is loaded, and the delegate's method.
struct DelegateEvent {
  NSString *const *name;
  const char *selector;
};

// Takes the delegate off every event, whether or not it has the methods.
void unsubscribeDelegate(id delegate, id component, std::span<const DelegateEvent> events);

// Adds it, in the order of the list, to those whose method it has now.
void subscribeDelegate(id delegate, id component, std::span<const DelegateEvent> events);

}  // namespace ov
