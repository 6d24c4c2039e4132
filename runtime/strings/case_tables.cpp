#include <tetrad/strings/text_functions.h>

#include <cctype>
#include <cstdlib>
#include <random>

namespace tetrad {

unsigned char gZRUpperChar[256] = {};
unsigned char gZRLowerChar[256] = {};

int InitZRGlobals()
{
    for (char32_t value = 0; value < 256; ++value) {
        // Under a Turkish locale the library's 'i' and 'I' are not each other's forms.
        const bool ascii = value < 0x80;
        const int code = static_cast<int>(value);
        gZRUpperChar[value] = static_cast<unsigned char>(ascii ? QChar::toUpper(value) : std::toupper(code));
        gZRLowerChar[value] = static_cast<unsigned char>(ascii ? QChar::toLower(value) : std::tolower(code));
    }
    std::srand(std::random_device{}());
    return 0;
}

} // namespace tetrad
