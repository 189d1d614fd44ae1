// Images by name and as resources, without two faults of the platform: it looks for a name that
// has no picture with each of its 240 types, thirty milliseconds long, and it reads whatever it
// finds.

#pragma once

#import <AppKit/AppKit.h>

// +[NSImage imageNamed:]. nil also for what is no name, and where the application's own picture
// is unsafe to read.
NSImage *OvImageNamed(NSString *name);

// A new image, autoreleased, of the bundle's file as -pathForImageResource: finds it; nil where
// there is none, or an unsafe one, and without a bundle.
NSImage *OvImageOfResource(NSBundle *bundle, NSString *name);
