// Files: renamed, dragged out, dropped in, changed behind the gallery's back.

#import "GalleryProcess.h"

#include <algorithm>
#include <fstream>

#include "XTest.h"

// Takes files that are dropped on it.
@interface FileReceiver : NSView {
 @public
  NSArray *_received;
  int _updates;
}
@end

@implementation FileReceiver

- (void)dealloc {
  [_received release];
  [super dealloc];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  (void)info;
  return NSDragOperationCopy;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  (void)info;
  ++_updates;
  return NSDragOperationCopy;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  _received = [[[info draggingPasteboard] propertyListForType:NSFilenamesPboardType] retain];
  return YES;
}

@end

// Files can be dragged out of it.
@interface FileSource : NSView {
 @public
  NSArray *_paths;
  BOOL _ended;
}
@end

@implementation FileSource

- (BOOL)acceptsFirstMouse:(NSEvent *)event {
  (void)event;
  return YES;
}

- (void)mouseDragged:(NSEvent *)event {
  NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
  [pasteboard declareTypes:@[ NSFilenamesPboardType ] owner:nil];
  [pasteboard setPropertyList:_paths forType:NSFilenamesPboardType];
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(16, 16)] autorelease];
  [image lockFocus];
  [[NSColor redColor] set];
  NSRectFill(NSMakeRect(0, 0, 16, 16));
  [image unlockFocus];
  [self dragImage:image
               at:[self convertPoint:[event locationInWindow] fromView:nil]
           offset:NSZeroSize
            event:event
       pasteboard:pasteboard
           source:self
        slideBack:NO];
  _ended = YES;
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)local {
  (void)local;
  return NSDragOperationCopy;
}

@end

namespace ov::test {

namespace fs = std::filesystem;

class FilesJourney : public GalleryJourney {
 protected:
  // A view of the test's own above the settings of the gallery, in a window without a
  // title, and without taking the keyboard.
  template <class View>
  View *showAboveSettings(Class viewClass, NSSize size) {
    const ScreenRect window = state().window;
    NSWindow *panel = [[[NSWindow alloc]
        initWithContentRect:NSMakeRect(window.x + window.width - size.width - 40,
                                       xtest::screenHeight() - (window.y + window.height - 20),
                                       size.width, size.height)
                  styleMask:NSBorderlessWindowMask
                    backing:NSBackingStoreBuffered
                      defer:NO] autorelease];
    [panel setReleasedWhenClosed:NO];
    View *view =
        [[[viewClass alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)] autorelease];
    [panel setContentView:view];
    [panel orderFrontRegardless];
    [panel display];
    pumpPending();
    panels_.push_back([panel retain]);
    return view;
  }

  void TearDown() override {
    for (NSWindow *panel : panels_) {
      [panel close];
      [panel release];
    }
    GalleryJourney::TearDown();
  }

  // The middle of a view on the screen, from the top.
  static void middleOf(NSView *view, int *x, int *y) {
    const NSPoint p = screenPoint(view, NSMakePoint(NSMidX([view bounds]), NSMidY([view bounds])));
    *x = static_cast<int>(p.x);
    *y = xtest::screenHeight() - static_cast<int>(p.y);
  }

  // Drags the paths from a view of the test into the middle of the gallery's grid.
  void dropIntoGrid(NSArray *paths) {
    FileSource *source = showAboveSettings<FileSource>([FileSource class], NSMakeSize(120, 60));
    source->_paths = paths;
    int x = 0, y = 0;
    middleOf(source, &x, &y);
    const ScreenRect grid = state().grid;
    const int toX = grid.midX(), toY = grid.midY();
    xtest::movePointer(x, y);
    pumpPending();
    // The last step is repeated: the button is let go where the gallery has said that it
    // takes the drop, and a little later, when the drag has heard of it.
    int answered = 0, side = 1;
    const std::vector<std::function<void()>> steps = {
        [=] { xtest::movePointer((x + toX) / 2, (y + toY) / 2); },
        [=] { xtest::movePointer(toX - 20, toY); },
        [&, toX, toY] {
          xtest::movePointer(toX + (side = -side), toY);
          if (state().number("drop") == 1 && ++answered == 3) xtest::releaseButton();
        }};
    EXPECT_TRUE(runWithSteps(
        steps,
        [&] {
          xtest::pressButton();
          pumpPending();
          xtest::movePointer(x - 6, y - 4);
          pumpUntil([&] { return source->_ended; }, 20);
        },
        0.25));
    EXPECT_TRUE(source->_ended);
  }

  // On a busy machine the two clicks may come too far apart to be one double click.
  bool doubleClickToRename(const std::string &name) {
    for (int attempt = 0; attempt < 3; ++attempt) {
      clickItem(name, {}, 2);
      for (int nudges = 0; nudges < 8; ++nudges) {
        if (pumpUntil([&] { return state().value("editing") == name; }, 0.5)) return true;
        nudgePointer();
      }
    }
    return false;
  }

  static NSString *string(const fs::path &path) {
    return [NSString stringWithUTF8String:path.c_str()];
  }

 private:
  std::vector<NSWindow *> panels_;
};

TEST_F(FilesJourney, ADoubleClickAndTypingRenameTheFile) {
  makePictures(6);
  start();
  ASSERT_TRUE(doubleClickToRename("p02.png"));
  typeKeys({"m", "o", "o", "n", "Return"});
  waitFor("the new name", [](const GalleryState &s) { return s.items.contains("moon.png"); });
  EXPECT_TRUE(fs::exists(folder() / "moon.png"));
  EXPECT_FALSE(fs::exists(folder() / "p02.png"));
  EXPECT_EQ(state().selected, std::vector<std::string>{"moon.png"});
}

TEST_F(FilesJourney, EscapeKeepsTheName) {
  makePictures(3);
  const auto before = filesInFolder();
  start();
  ASSERT_TRUE(doubleClickToRename("p01.png"));
  typeKeys({"x", "y", "Escape"});
  waitFor("the end of the editing",
          [](const GalleryState &s) { return s.value("editing").empty(); });
  EXPECT_EQ(filesInFolder(), before);
  EXPECT_EQ(state().number("warning"), 0);
  EXPECT_EQ(state().selected, std::vector<std::string>{"p01.png"});
}

TEST_F(FilesJourney, ATakenOrIllegalNameIsRefusedAndNothingIsLost) {
  makePictures(4);
  const auto before = filesInFolder();
  start();
  ASSERT_TRUE(doubleClickToRename("p00.png"));
  typeKeys({"p", "0", "3", "Return"});
  waitFor("that the name is taken", [](const GalleryState &s) {
    return s.number("warning") == 1 && s.value("message").contains("already");
  });
  EXPECT_EQ(filesInFolder(), before);

  ASSERT_TRUE(doubleClickToRename("p01.png"));
  typeKeys({"a", "slash", "b", "Return"});
  waitFor("that a name has no slash", [](const GalleryState &s) {
    return s.number("warning") == 1 && s.value("message").contains("cannot contain");
  });
  EXPECT_EQ(filesInFolder(), before);
}

TEST_F(FilesJourney, SelectedPicturesAreDraggedOutAsFiles) {
  makePictures(10);
  start();
  clickItem("p01.png");
  ASSERT_TRUE(waitForSelection({"p01.png"}));
  clickItem("p03.png", {"Super_L"});
  ASSERT_TRUE(waitForSelection({"p01.png", "p03.png"}));

  FileReceiver *receiver =
      showAboveSettings<FileReceiver>([FileReceiver class], NSMakeSize(120, 60));
  [receiver registerForDraggedTypes:@[ NSFilenamesPboardType ]];
  int x = 0, y = 0;
  middleOf(receiver, &x, &y);
  // Not from the item clicked last: that would be a double click.
  const ScreenRect from = state().items.at("p01.png");
  xtest::movePointer(from.midX(), from.midY());
  xtest::pressButton();
  // The gallery follows the pointer at its own pace. It must have seen the first move before
  // the next, and lets go only where it knows that the drop will be taken.
  const int places[][2] = {{from.midX() + 8, from.midY() + 8},
                           {from.midX() + 30, from.midY() + 40},
                           {(from.midX() + x) / 2, (from.midY() + y) / 2},
                           {x - 8, y},
                           {x, y}};
  const auto isOver = [&] { return receiver->_updates >= 3; };
  for (const auto &place : places) {
    xtest::movePointer(place[0], place[1]);
    pumpUntil(isOver, 0.2);
  }
  for (int i = 0; i < 40 && !isOver(); ++i) {
    nudgePointer();
    pumpUntil(isOver, 0.2);
  }
  EXPECT_TRUE(isOver());
  xtest::releaseButton();
  EXPECT_TRUE(pumpUntil([&] { return receiver->_received != nil; }, 10));
  EXPECT_TRUE([receiver->_received
      isEqual:(@[ string(folder() / "p01.png"), string(folder() / "p03.png") ])])
      << [[receiver->_received description] UTF8String];
}

TEST_F(FilesJourney, DroppedFilesAreCopiedAndNeverReplaceOthers) {
  makePictures(3);
  const fs::path elsewhere = root() / "elsewhere";
  fs::create_directories(elsewhere);
  fs::copy_file(folder() / "p01.png", elsewhere / "p00.png");
  fs::copy_file(folder() / "p01.png", elsewhere / "tree.png");
  std::ofstream(elsewhere / "notes.txt") << "not a picture";
  const auto sizeBefore = fs::last_write_time(folder() / "p00.png");
  start();
  // The platform now and then loses a drop between two programs; whoever dropped the files
  // sees that nothing happens, and does it again.
  for (int i = 0; i < 3 && filesInFolder().size() == 3; ++i) {
    dropIntoGrid(@[
      string(elsewhere / "p00.png"), string(elsewhere / "tree.png"), string(elsewhere / "notes.txt")
    ]);
    pumpUntil([&] { return filesInFolder().size() > 3; }, 3);
  }
  waitFor("the copies", [](const GalleryState &s) {
    return s.selected == std::vector<std::string>{"p00 copy.png", "tree.png"};
  });
  EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"p00 copy.png", "p00.png", "p01.png",
                                                       "p02.png", "tree.png"}));
  EXPECT_EQ(fs::last_write_time(folder() / "p00.png"), sizeBefore);
  waitFor("that one was no picture", [](const GalleryState &s) {
    return s.number("warning") == 1 && s.value("message").contains("notes.txt");
  });
}

TEST_F(FilesJourney, CopyAndPasteDuplicate) {
  makePictures(2);
  start();
  clickItem("p00.png");
  ASSERT_TRUE(waitForSelection({"p00.png"}));
  typeKeys({"c", "v"}, {"Super_L"});
  ASSERT_TRUE(waitForSelection({"p00 copy.png"}));
  typeKeys({"v"}, {"Super_L"});
  ASSERT_TRUE(waitForSelection({"p00 copy 2.png"}));
  EXPECT_EQ(filesInFolder().size(), 4u);
}

TEST_F(FilesJourney, ChangesOnDiskAreSeen) {
  makePictures(4);
  start();
  clickItem("p03.png");
  ASSERT_TRUE(waitForSelection({"p03.png"}));
  fs::copy_file(folder() / "p00.png", folder() / "a new one.png");
  waitFor("the new picture, and the selection kept", [](const GalleryState &s) {
    return s.items.contains("a new one.png") && s.selected == std::vector<std::string>{"p03.png"};
  });
  fs::remove(folder() / "p03.png");
  waitFor("the picture gone",
          [](const GalleryState &s) { return s.number("items") == 4 && s.selected.empty(); });
}

}  // namespace ov::test
