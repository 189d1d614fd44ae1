#import <AppKit/AppKit.h>

/** Helps a document to write itself as a package: a folder that looks like one file.

      NSFileWrapper *root =
          [[[NSFileWrapper alloc] initDirectoryWithFileWrappers:nil] autorelease];
      HXPackageSerializationContext *context =
          [[[HXPackageSerializationContext alloc] initWithFileWrapper:root
                                                             document:document] autorelease];
      [context addPackageInfoFile:@"APPL????"];
      [[context resourcesDirectoryFileWrapper] addRegularFileWithContents:picture
                                                        preferredFilename:@"cover.png"];

      root/
        Contents/
          PkgInfo       the string, in UTF-8
          Resources/
            cover.png

    Folders are made when they are first asked for; those that are there already are used. One
    writer at a time. */
@interface HXPackageSerializationContext : NSObject {
  NSFileWrapper *_fileWrapper;
  NSDocument *_document;
}

/** The context of no document. The wrapper is retained. */
- (id)initWithFileWrapper:(NSFileWrapper *)fileWrapper;
/** `fileWrapper` is the package's root folder, `document` what is written, or nil. Both are
    retained. */
- (id)initWithFileWrapper:(NSFileWrapper *)fileWrapper document:(NSDocument *)document;

/** The root, as given. */
- (NSFileWrapper *)rootDirectoryFileWrapper;
/** The folder "Contents" of the root, made if there is none. nil without a root, and where the
    root is not a folder or has something else of that name, which is left alone; one line in the
    log tells of those. */
- (NSFileWrapper *)contentsDirectoryFileWrapper;
/** The folder "Resources" of "Contents", in the same way. */
- (NSFileWrapper *)resourcesDirectoryFileWrapper;

/** Gives "Contents" a regular file "PkgInfo" with the string in UTF-8, in place of one that is
    there. Nothing happens for nil, and where there is no folder "Contents"; one line in the log
    tells of a string that has no UTF-8 (half a character). */
- (void)addPackageInfoFile:(NSString *)packageInfo;

/** The document, or nil. */
- (NSDocument *)document;

@end
