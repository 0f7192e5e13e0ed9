#include "output/placeable_metafile.h"
