// Images by name and as resources, without two faults of the platform: it tries some two hundred
// types of image for a name that is none, and logs each; and it reads whatever it finds.

#pragma once

#import <AppKit/AppKit.h>

// +[NSImage imageNamed:]. nil also for what is no name, and where the application's own picture
// is unsafe to read.
NSImage *OvImageNamed(NSString *name);

// A new image, autoreleased, that refers to the bundle's file as -pathForImageResource: finds
// it; nil where there is none, or an unsafe one.
NSImage *OvImageOfResource(NSBundle *bundle, NSString *name);
