#include "output/dxf_writer.h"
