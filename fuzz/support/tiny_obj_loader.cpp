// The parser of OBJ files, compiled here instead of linked from its package, so that the sanitizers see it too.
#define TINYOBJLOADER_IMPLEMENTATION
#include <tiny_obj_loader.h>
