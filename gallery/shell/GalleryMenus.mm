#import "shell/GalleryMenus.h"

#import "shell/GalleryPage.h"

static NSMenu *addMenu(NSMenu *bar, NSString *title) {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:title] autorelease];
  [bar setSubmenu:menu forItem:[bar addItemWithTitle:title action:NULL keyEquivalent:@""]];
  return menu;
}

void GalleryInstallMenus(NSArray *pages, id controller) {
  NSMenu *bar = [[[NSMenu alloc] initWithTitle:@"Gallery"] autorelease];

  NSMenu *application = addMenu(bar, @"Gallery");
  [application addItemWithTitle:@"About Gallery"
                         action:@selector(orderFrontStandardAboutPanel:)
                  keyEquivalent:@""];
  [application addItem:[NSMenuItem separatorItem]];
  [application addItemWithTitle:@"Hide" action:@selector(hide:) keyEquivalent:@"h"];
  [application addItemWithTitle:@"Quit" action:@selector(terminate:) keyEquivalent:@"q"];

  NSMenu *edit = addMenu(bar, @"Edit");
  [edit addItemWithTitle:@"Cut" action:@selector(cut:) keyEquivalent:@"x"];
  [edit addItemWithTitle:@"Copy" action:@selector(copy:) keyEquivalent:@"c"];
  [edit addItemWithTitle:@"Paste" action:@selector(paste:) keyEquivalent:@"v"];
  [edit addItem:[NSMenuItem separatorItem]];
  [edit addItemWithTitle:@"Select All" action:@selector(selectAll:) keyEquivalent:@"a"];
  [edit addItemWithTitle:@"Deselect All" action:@selector(deselectAll:) keyEquivalent:@"d"];

  NSMenu *view = addMenu(bar, @"View");
  NSInteger number = 0;
  for (GalleryPage *page in pages) {
    NSString *key =
        number < 9 ? [NSString stringWithFormat:@"%d", static_cast<int>(number + 1)] : @"";
    id<NSMenuItem> item = [view addItemWithTitle:[[page class] title]
                                          action:@selector(showPageFromMenu:)
                                   keyEquivalent:key];
    [item setTarget:controller];
    [item setTag:number++];
  }
  [NSApp setMainMenu:bar];
  [[bar itemAtIndex:0] setImage:nil];  // the platform's own, when the program has none
}
