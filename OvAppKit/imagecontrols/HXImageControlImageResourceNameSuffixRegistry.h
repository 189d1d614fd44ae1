// HXImageControlImageResourceNameSuffixRegistry: how the pictures of a set are named.
//
// A name is a prefix of the host's, a suffix for the state and a suffix for the piece:
//
//   Button-default.png  Button-default-left.png  …  Button-highlighted-right-bottom.png
//
// The scheme of all sets that are loaded from then on is changed at the one registry that image
// containers share:
//
//   HXImageControlImageResourceNameSuffixRegistry *names =
//       [HXImageControlImageContainer imageResourceNameSuffixRegistry];
//   [names setSuffix:@"-hot" forImageVariation:HXImageControlImageVariationMouseOver];
//   [names setPathExtension:@"png"];

#import <OvAppKit/HXImageControlConstants.h>

/** For the main thread. */
@interface HXImageControlImageResourceNameSuffixRegistry : NSObject {
  BOOL appendsSuffixForImagePartBeforeImageVariation_;
  NSString *imagePartSuffix_[11];
  NSString *imageVariationSuffix_[5];
  NSString *pathExtension_;
}

/** A registry whose suffixes are all "", so that every name is the bare prefix. The shared one of
    `+[HXImageControlImageContainer imageResourceNameSuffixRegistry]` has the suffixes "-left",
    "-right", "-top", "-bottom", "-left-top", "-right-top", "-left-bottom", "-right-bottom", "-icon"
    and "-accessory" (and "" for the center), "-default", "-highlighted", "-mouseopushed"
    (deliberately spelled so: artwork is named after it), "-mouseovered" and "-disabled". */
- (id)init;

/** NO, the default, for "Button-highlighted-left"; YES for "Button-left-highlighted". */
- (void)setAppendsSuffixForImagePartBeforeImageVariation:(BOOL)flag;
- (BOOL)appendsSuffixForImagePartBeforeImageVariation;

/** Retained, not copied. Give "" for no suffix; nil is taken for that, too. Nothing happens for
    what is no part or variation. */
- (void)setSuffix:(NSString *)suffix forImagePart:(HXImageControlImagePart)part;
- (void)setSuffix:(NSString *)suffix forImageVariation:(HXImageControlImageVariation)variation;

/** "" for what is no part or variation. */
- (NSString *)suffixForImagePart:(HXImageControlImagePart)part;
- (NSString *)suffixForImageVariation:(HXImageControlImageVariation)variation;

/** The file name extension of the pictures, retained. nil, the default, finds every type of picture
    that the platform knows. It is no part of the names below. */
- (void)setPathExtension:(NSString *)extension;
- (NSString *)pathExtension;

/** The prefix with both suffixes, with that of the part, or with that of the variation, which are
    asked of the accessors above, so that a subclass may override them. Autoreleased. A nil prefix
    is taken for "". */
- (NSString *)stringWithPrefix:(NSString *)prefix
                     imagePart:(HXImageControlImagePart)part
                imageVariation:(HXImageControlImageVariation)variation;
- (NSString *)stringWithPrefix:(NSString *)prefix imagePart:(HXImageControlImagePart)part;
- (NSString *)stringWithPrefix:(NSString *)prefix
                imageVariation:(HXImageControlImageVariation)variation;

@end
