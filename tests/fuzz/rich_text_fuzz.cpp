// Any bytes as a help document: the reader returns, within its bounds.
#include "fuzz/target.h"
#include "ui/rich_text/rich_text.h"

void TryInput(const std::string& input) {
    Require(ReadRichText(input).size() <= input.size(), "no more text than bytes");
}
