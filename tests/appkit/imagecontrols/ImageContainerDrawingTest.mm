#import "Artwork.h"
