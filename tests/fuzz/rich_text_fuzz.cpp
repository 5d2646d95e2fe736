// Any bytes as a help document: the reader returns, within its bounds.
#include <cstdint>
#include <cstdlib>

#include "ui/rich_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const RichText text = ReadRichText({reinterpret_cast<const char*>(data), size});
    if (text.size() > size)
        std::abort();
    return 0;
}
