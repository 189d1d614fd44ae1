#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>

#include <iterator>

#include "support/Retained.h"

namespace {

NSString *joined(NSString *prefix, NSString *first, NSString *second = @"") {
  NSMutableString *name = [NSMutableString string];
  // A subclass may answer nil.
  for (NSString *part : {prefix, first, second}) [name appendString:part ?: @""];
  return name;
}

}  // namespace

@implementation HXImageControlImageResourceNameSuffixRegistry

- (id)init {
  self = [super init];
  if (self == nil) return nil;
  for (NSString *&suffix : imagePartSuffix_) suffix = @"";
  for (NSString *&suffix : imageVariationSuffix_) suffix = @"";
  return self;
}

- (void)dealloc {
  for (NSString *suffix : imagePartSuffix_) [suffix release];
  for (NSString *suffix : imageVariationSuffix_) [suffix release];
  [pathExtension_ release];
  [super dealloc];
}

- (void)setAppendsSuffixForImagePartBeforeImageVariation:(BOOL)flag {
  appendsSuffixForImagePartBeforeImageVariation_ = flag;
}

- (BOOL)appendsSuffixForImagePartBeforeImageVariation {
  return appendsSuffixForImagePartBeforeImageVariation_;
}

- (void)setSuffix:(NSString *)suffix forImagePart:(HXImageControlImagePart)part {
  if (part >= std::size(imagePartSuffix_)) return;
  OvReplaceRetained(&imagePartSuffix_[part], suffix ?: @"");
}

- (void)setSuffix:(NSString *)suffix forImageVariation:(HXImageControlImageVariation)variation {
  if (variation >= std::size(imageVariationSuffix_)) return;
  OvReplaceRetained(&imageVariationSuffix_[variation], suffix ?: @"");
}

- (NSString *)suffixForImagePart:(HXImageControlImagePart)part {
  return part < std::size(imagePartSuffix_) ? imagePartSuffix_[part] : @"";
}

- (NSString *)suffixForImageVariation:(HXImageControlImageVariation)variation {
  return variation < std::size(imageVariationSuffix_) ? imageVariationSuffix_[variation] : @"";
}

- (void)setPathExtension:(NSString *)extension {
  OvReplaceRetained(&pathExtension_, extension);
}

- (NSString *)pathExtension {
  return pathExtension_;
}

- (NSString *)stringWithPrefix:(NSString *)prefix
                     imagePart:(HXImageControlImagePart)part
                imageVariation:(HXImageControlImageVariation)variation {
  NSString *partSuffix = [self suffixForImagePart:part];
  NSString *variationSuffix = [self suffixForImageVariation:variation];
  if ([self appendsSuffixForImagePartBeforeImageVariation]) {
    return joined(prefix, partSuffix, variationSuffix);
  }
  return joined(prefix, variationSuffix, partSuffix);
}

- (NSString *)stringWithPrefix:(NSString *)prefix imagePart:(HXImageControlImagePart)part {
  return joined(prefix, [self suffixForImagePart:part]);
}

- (NSString *)stringWithPrefix:(NSString *)prefix
                imageVariation:(HXImageControlImageVariation)variation {
  return joined(prefix, [self suffixForImageVariation:variation]);
}

@end
