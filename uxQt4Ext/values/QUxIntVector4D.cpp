#include "QUxIntVector4D.h"

// Header-only in practice; this unit anchors the class in the library.
