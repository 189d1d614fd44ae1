#include "matrix/GridGeometry.h"
namespace ov { int f() {return 1;} }
