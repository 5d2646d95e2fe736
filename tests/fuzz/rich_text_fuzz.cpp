// Any bytes as a help document: the reader returns, within its bounds.
#include "fuzz/target.h"
#include "ui/rich_text.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Require(ReadRichText(AsText(data, size)).size() <= size, "no more text than bytes");
    return 0;
}
