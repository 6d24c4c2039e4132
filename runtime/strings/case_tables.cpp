#include <tetrad/strings/text_functions.h>

#include <cctype>
#include <cstdlib>
#include <random>

namespace tetrad {

unsigned char gZRUpperChar[256] = {};
unsigned char gZRLowerChar[256] = {};

namespace {

constexpr int asciiEnd = 128;
constexpr int caseDistance = 'a' - 'A';

// By hand, because under a Turkish locale the library's 'i' and 'I' are not each other's forms.
void fillAscii()
{
    for (int value = 0; value < asciiEnd; ++value) {
        const bool lower = value >= 'a' && value <= 'z';
        const bool upper = value >= 'A' && value <= 'Z';
        gZRUpperChar[value] = static_cast<unsigned char>(lower ? value - caseDistance : value);
        gZRLowerChar[value] = static_cast<unsigned char>(upper ? value + caseDistance : value);
    }
}

void fillAboveAscii()
{
    for (int value = asciiEnd; value < 256; ++value) {
        gZRUpperChar[value] = static_cast<unsigned char>(std::toupper(value));
        gZRLowerChar[value] = static_cast<unsigned char>(std::tolower(value));
    }
}

} // namespace

int InitZRGlobals()
{
    fillAscii();
    fillAboveAscii();
    std::srand(std::random_device{}());
    return 0;
}

} // namespace tetrad
