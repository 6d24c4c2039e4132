#include "runtime/console/document/emoji_runs.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tetrad {

namespace {

using CodeRange = std::pair<char32_t, char32_t>;

// Emoji_Presentation of Unicode 14, except that the last block is taken whole: later versions only add to it.
constexpr auto presentationRanges = std::to_array<CodeRange>({
    {0x231A, 0x231B},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},   {0x23F3, 0x23F3},   {0x25FD, 0x25FE},
    {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},   {0x2693, 0x2693},   {0x26A1, 0x26A1},
    {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},   {0x26CE, 0x26CE},   {0x26D4, 0x26D4},
    {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},   {0x26FA, 0x26FA},   {0x26FD, 0x26FD},
    {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},   {0x274C, 0x274C},   {0x274E, 0x274E},
    {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},   {0x27B0, 0x27B0},   {0x27BF, 0x27BF},
    {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},   {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF},
    {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A}, {0x1F1E6, 0x1F1FF}, {0x1F201, 0x1F201}, {0x1F21A, 0x1F21A},
    {0x1F22F, 0x1F22F}, {0x1F232, 0x1F236}, {0x1F238, 0x1F23A}, {0x1F250, 0x1F251}, {0x1F300, 0x1F320},
    {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393}, {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3},
    {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC},
    {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596},
    {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC}, {0x1F6D0, 0x1F6D2},
    {0x1F6D5, 0x1F6D7}, {0x1F6DC, 0x1F6DF}, {0x1F6EB, 0x1F6EC}, {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7EB},
    {0x1F7F0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAFF},
});

constexpr char32_t zeroWidthJoiner = 0x200D;
constexpr char32_t textSelector = 0xFE0E;
constexpr char32_t emojiSelector = 0xFE0F;

bool hasEmojiPresentation(char32_t code)
{
    const auto *range = std::upper_bound(presentationRanges.begin(), presentationRanges.end(), code,
                                         [](char32_t value, const CodeRange &r) { return value < r.first; });
    return range != presentationRanges.begin() && code <= std::prev(range)->second;
}

bool isSkinTone(char32_t code)
{
    return code >= 0x1F3FB && code <= 0x1F3FF;
}

// The tag characters that spell the region of a subdivision's flag.
bool isFlagTag(char32_t code)
{
    return code >= 0xE0020 && code <= 0xE007F;
}

// One code point of the text; reading past the end gives 0.
struct Reader
{
    const QString &text;

    char32_t at(qsizetype index) const
    {
        if (index >= text.size()) {
            return 0;
        }
        const bool pair =
            text.at(index).isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
        return pair ? QChar::surrogateToUcs4(text.at(index), text.at(index + 1)) : text.at(index).unicode();
    }

    qsizetype next(qsizetype index) const { return index + (at(index) > 0xFFFF ? 2 : 1); }

    bool emojiStartsAt(qsizetype index) const
    {
        const char32_t code = at(index);
        const char32_t follower = at(next(index));
        if (code < 0x80 || follower == textSelector) {
            return false;
        }
        return follower == emojiSelector || hasEmojiPresentation(code);
    }

    // Just past the picture that starts at index: selectors, skin tones and tags, and whatever is joined on.
    qsizetype pictureEnd(qsizetype index) const
    {
        qsizetype end = next(index);
        for (;;) {
            const char32_t code = at(end);
            if (code == emojiSelector || isSkinTone(code) || isFlagTag(code)) {
                end = next(end);
            } else if (code == zeroWidthJoiner && at(end + 1) >= 0x80) {
                end = next(end + 1);
            } else {
                return end;
            }
        }
    }
};

} // namespace

QList<TextRun> emojiRuns(const QString &text)
{
    QList<TextRun> runs;
    const Reader reader{text};
    qsizetype index = 0;
    while (index < text.size()) {
        if (!reader.emojiStartsAt(index)) {
            index = reader.next(index);
            continue;
        }
        const qsizetype end = reader.pictureEnd(index);
        if (!runs.isEmpty() && runs.last().start + runs.last().length == index) {
            runs.last().length += end - index;
        } else {
            runs.append({index, end - index});
        }
        index = end;
    }
    return runs;
}

} // namespace tetrad
