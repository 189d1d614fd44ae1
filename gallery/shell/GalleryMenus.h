// The gallery's menu bar.
#import <AppKit/AppKit.h>

// Makes and installs the main menu. The commands of the pages go to the first responder;
// one command per page goes to the controller, as showPageFromMenu: with the page's number
// as the item's tag.
void GalleryInstallMenus(NSArray *pages, id controller);
