#pragma once

#include <FreeImage.h>

#include <memory>

namespace pelorin::library {

struct CloseBitmap {
    void operator()(FIBITMAP* bitmap) const { FreeImage_Unload(bitmap); }
};
struct CloseMemory {
    void operator()(FIMEMORY* memory) const { FreeImage_CloseMemory(memory); }
};

using Bitmap = std::unique_ptr<FIBITMAP, CloseBitmap>;
using Memory = std::unique_ptr<FIMEMORY, CloseMemory>;

} // namespace pelorin::library
