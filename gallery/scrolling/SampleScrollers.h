// Scrollers whose arrows stand where each of the four configurations puts them, whatever the
// platform's do.
#import <OvAppKit/OvAppKit.h>

// The class for a configuration from 1 to 4.
Class GalleryScrollerClass(int configuration);
