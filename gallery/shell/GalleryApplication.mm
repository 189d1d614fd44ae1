#import "shell/GalleryApplication.h"

#include <signal.h>
#include <unistd.h>

#import "shell/GalleryMenus.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySnapshot.h"
#import "shell/GalleryStatusFile.h"
#import "shell/GalleryStyle.h"
#import "shell/GalleryWindow.h"

// Longer than every page's own limit together: a snapshot run ends, whatever happens.
static const unsigned kSnapshotLimit = 240;

static NSString *folderOption = nil;

NSString *GalleryFolderOption() { return folderOption; }

static int signalPipe[2];

static void noteSignal(int) {
  const char byte = 0;
  if (write(signalPipe[1], &byte, 1) != 1) _exit(0);
}

static void noteTimeout(int) {
  static const char text[] = "Gallery: the pictures were not finished in time.\n";
  [[maybe_unused]] const ssize_t written = write(2, text, sizeof text - 1);
  _exit(2);
}

static void handleSignal(int number, void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  sigaction(number, &action, nullptr);
}

@implementation GalleryApplication

- (id)initWithOptions:(const gallery::Options &)options {
  self = [super init];
  if (!self) return nil;
  _options = options;
  if (!options.folder.empty()) {
    NSString *folder = [NSString stringWithUTF8String:options.folder.c_str()];
    if (![folder isAbsolutePath]) {
      folder = [[[NSFileManager defaultManager] currentDirectoryPath]
          stringByAppendingPathComponent:folder];
    }
    folderOption = [[folder stringByStandardizingPath] copy];
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_statusFile release];
  [_window release];
  [_signals release];
  [super dealloc];
}

// The platform takes these signals and does nothing with them.
- (void)endOnSignals {
  if (pipe(signalPipe) != 0) return;
  handleSignal(SIGTERM, noteSignal);
  handleSignal(SIGINT, noteSignal);
  _signals = [[NSFileHandle alloc] initWithFileDescriptor:signalPipe[0] closeOnDealloc:NO];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(signalCame:)
                                               name:NSFileHandleDataAvailableNotification
                                             object:_signals];
  [_signals waitForDataInBackgroundAndNotifyForModes:@[
    NSDefaultRunLoopMode, NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode
  ]];
}

// -terminate: would first wait for the end of a drag, or of an open menu.
- (void)signalCame:(NSNotification *)notification {
  [self applicationWillTerminate:notification];
  [[NSUserDefaults standardUserDefaults] synchronize];
  exit(0);
}

- (void)applicationWillFinishLaunching:(NSNotification *)notification {
  (void)notification;
  GalleryLightenPlatform();
  _window = [[GalleryWindow alloc] initWithPages:[GalleryPage makePages]];
  GalleryInstallMenus([_window pages], _window);
  [[_window window] setMenu:[NSApp mainMenu]];
}

- (void)applicationDidFinishLaunching:(NSNotification *)notification {
  (void)notification;
  [self endOnSignals];
  if (!_options.snapshot.empty()) {
    handleSignal(SIGALRM, noteTimeout);
    alarm(kSnapshotLimit);
    [_window orderFront];
    [self performSelector:@selector(writeSnapshots) withObject:nil afterDelay:0];
    return;
  }
  if (!_options.statusFile.empty()) {
    _statusFile = [[GalleryStatusFile alloc]
        initWithPath:[NSString stringWithUTF8String:_options.statusFile.c_str()]
              window:_window];
  }
  [_window showPageNamed:[NSString stringWithUTF8String:_options.page.c_str()]];
  [_window orderFront];
}

- (void)writeSnapshots {
  const BOOL written =
      GalleryWriteSnapshots(_window, [NSString stringWithUTF8String:_options.snapshot.c_str()]);
  exit(written ? 0 : 1);
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication *)application {
  (void)application;
  return YES;
}

- (void)applicationWillTerminate:(NSNotification *)notification {
  (void)notification;
  [[_window pages] makeObjectsPerformSelector:@selector(close)];
}

@end
