#include "ui/rich_text/rich_text.h"

#include <gtest/gtest.h>

namespace {

std::string TextOf(const RichParagraph& paragraph) {
    std::string text;
    for (const RichRun& run : paragraph.Runs)
        text += run.Text;
    return text + "|";
}

// Paragraphs end in bars; a table's rows stand in brackets, their cells end in semicolons.
std::string TextOf(const RichText& document) {
    std::string text;
    for (const RichBlock& block : document) {
        if (const auto* paragraph = std::get_if<RichParagraph>(&block)) {
            text += TextOf(*paragraph);
            continue;
        }
        for (const RichRow& row : std::get<RichTable>(block).Rows) {
            text += "[";
            for (const RichCell& cell : row.Cells) {
                for (const RichParagraph& paragraph : cell.Paragraphs)
                    text += TextOf(paragraph);
                text += ";";
            }
            text += "]";
        }
    }
    return text;
}

std::string Read(const std::string& rtf) {
    return TextOf(ReadRichText(rtf));
}

} // namespace

TEST(RichText, ReadsTheFormatsOfRunsAndParagraphs) {
    const RichText document =
        ReadRichText("{\\rtf1;{\\colortbl\\red0\\green2\\blue300\\x;" + std::string(255, ';') +
                     "\\red9;}"
                     "\\qc\\li400\\fi-400\\sa99999\na{\\b\\cf0\\fs30 b\\b0 c}{\\i\\ul d\\ulnone "
                     "g}\\cf256 e\\b\\plain h\\par\\pard f\\par}");
    ASSERT_EQ(document.size(), 2u);
    const auto& first = std::get<RichParagraph>(document.at(0));
    EXPECT_EQ(first.Format.Alignment, RichAlignment::Center);
    EXPECT_EQ(first.Format.LeftIndent, 400);
    EXPECT_EQ(first.Format.FirstIndent, -400);
    EXPECT_EQ(first.Format.SpaceAfter, 2880); // two inches are the most
    const RichColor color{.Red = 0, .Green = 2, .Blue = 255};
    const std::vector<RichRunFormat> formats{{},
                                             {.Bold = true, .Color = color, .HalfPoints = 30},
                                             {.Color = color, .HalfPoints = 30},
                                             {.Italic = true, .Underline = true},
                                             {.Italic = true},
                                             {}}; // the last has a colour that is in no table
    ASSERT_EQ(first.Runs.size(), formats.size());
    for (std::size_t run = 0; run < formats.size(); ++run)
        EXPECT_EQ(first.Runs.at(run).Format, formats.at(run)) << first.Runs.at(run).Text;
    EXPECT_EQ(std::get<RichParagraph>(document.at(1)).Format.LeftIndent, 0);
}

TEST(RichText, ReadsTextAndTablesEvenBrokenOnes) {
    const struct {
        std::string Rtf, Text;
    } cases[] = {
        {"{\\rtf1 a \r\nb\\par\\\n}", "a b||"},
        {"{\\rtf1\\azAZ-x}", "-x|"},
        {"{\\rtf1\\{\\}\\\\\\~\\bullet\\tab x}", "{}\\\u00A0\u2022\tx|"},
        {"{\\rtf1\\'09\\'80\\'fE\\'Cf\\'93\\'aF\\'Ae\\'ez\\'-f}",
         "\t\u20AC\u00FE\u00CF\u201C\u00AF\u00AEez-f|"},
        {"{\\rtf1\\uc1 \\u8364?\\u233\\'e9x\\u233\\~y\\u233\\tab z\\u233{w}{\\u233}v}",
         "\u20AC\u00E9x\u00E9y\u00E9z\u00E9w\u00E9v|"},
        {"{\\rtf1\\uc2\\u945\\~bc{\\uc0\\u946 "
         "d}\\u-10240??\\u-9216??\\u-9217??\\u-8195??\\u-9216??}",
         "\u03B1c\u03B2d\U00010000\U0010FFFD\uFFFD|"},
        {"{\\rtf1\\uc0\\u-9216\\u31\\u32.\\u126\\u127\\u159\\u160\\u2047\\u2048}",
         "\uFFFD .~\u00A0\u07FF\u0800|"},
        {"{\\rtf1\\uc0\\u8233\\u8234\\u8238\\u8239\\u8293\\u8294\\u8297\\u8298}",
         "\u202F\u2065\u206A|"},
        {"{\\rtf1\\uc0\\u-10240\\u-8192\\u-9216\\u-561\\u-560\\u-529\\u-528\\u-5\\u-4\\u-3\\u-2}",
         "\uE000\uFFFD\uFDCF\uFDF0\uFFFB\uFFFD|"},
        {"{\\rtf1{\\fonttbl{\\f0 F;}}{\\*\\new {x}\\\ny}{\\info z}{\\pict\\bin3 }}}}\\v h\\v0 s}",
         "s|"},
        {"{\\rtf1{\\field{\\*\\fldinst L}{\\fldrslt link}}}behind", "link|"},
        {"{\\rtf1\\trowd\\cellx9\\intbl a\\par b\\cell\\cell\\row\\intbl c\\cell\\row\\pard "
         "d\\par}",
         "[a|b|;;][c|;]d|"},
        {"{\\rtf1\\intbl a\\cell b\\pard c\\par\\row d\\cell}", "[a|;]bc|[d|;]"},
        {"{\\rtf1\\intbl a\\par\\row b\\row}", "[a|;][b|;]"},
        {"{\\rtf1\\row\\cell\\row\\row}", "[;]"},
    };
    for (const auto& [rtf, text] : cases)
        EXPECT_EQ(Read(rtf), text) << rtf;
    EXPECT_EQ(ReadRichText("{\\rtf1\\cell\\row\\cell\\row\\cell\\cell\\row\\cell\\row}").size(), 2u)
        << "tables";
    for (const char* broken :
         {"", "text", "{\\rt", "{\\rtf1 a", "{\\rtf1 a{}", "{\\rtf1 \\", "{\\rtf1\\b-"})
        EXPECT_TRUE(ReadRichText(broken).empty()) << broken;
}

TEST(RichText, BombsStayWithinBounds) {
    const std::string open(50'000, '{');
    const std::string close(50'000, '}');
    EXPECT_EQ(Read("{\\rtf1 " + open + "deep" + close + "x}"), "x|");
    EXPECT_TRUE(ReadRichText("{\\rtf1 " + std::string(2 << 20, 'a') + "}").empty());
    const std::string longText(1'000'000, 'a');
    EXPECT_EQ(Read("{\\rtf1 " + longText + "}").size(), 64537u);
    EXPECT_EQ(Read("{\\rtf1\\fs144 " + longText + "}").size(), 10860u);
    std::string paragraphs, cells, rows;
    for (int count = 0; count < 100'000; ++count) {
        paragraphs += "\\par";
        cells += "\\cell";
        rows += "\\cell\\row";
    }
    EXPECT_LE(ReadRichText("{\\rtf1" + paragraphs + "}").size(), 5000u);
    const std::pair<const char*, std::size_t> letters[] = {
        {"a", 1992}, {"\\u591?", 2 * 1992}, {"\\u592?", 2 * 249}, {"\\tab ", 125}};
    for (const auto& [letter, bytes] : letters) {
        std::string text;
        for (int count = 0; count < 4001; ++count)
            text += letter;
        EXPECT_EQ(Read("{\\rtf1 " + text + "}").find('|', bytes + 1), 2 * bytes + 1) << letter;
    }
    EXPECT_TRUE(Read("{\\rtf1\\intbl a" + paragraphs + "\\cell\\row}").starts_with("[a|"));
    const RichText filledUp = ReadRichText("{\\rtf1\\cell\\cell\\cell\\row" + rows + "}");
    EXPECT_EQ(std::get<RichTable>(filledUp.at(0)).Rows.size(), 683u);
    const RichText wide = ReadRichText("{\\rtf1\\cellx7\\trowd\\cellx0\\cellx9" + cells + "\\row}");
    EXPECT_EQ(std::get<RichTable>(wide.at(0)).Rows.at(0).Cells.size(), 8u);
    EXPECT_EQ(std::get<RichTable>(wide.at(0)).Rows.at(0).RightEdges, (std::vector{0, 9}));
}
