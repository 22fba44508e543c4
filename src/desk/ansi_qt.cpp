#include "desk/ansi_qt.h"

#include <algorithm>
#include <iterator>

namespace {

// The codes 128 to 159 are the only ones that differ from Latin-1.
constexpr int First_Special = 128;
constexpr char16_t Specials[32] = {0x20AC, 0x20,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x20,   0x017D, 0x20,
                                   0x20,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x20,   0x017E, 0x0178};

char16_t Letter_Of(unsigned char code) {
    if (code < 32) return ' ';
    return code >= First_Special && code < 160 ? Specials[code - First_Special] : code;
}

char Code_Of(char16_t letter) {
    if ((letter >= 32 && letter < First_Special) || (letter >= 160 && letter < 256)) {
        return static_cast<char>(letter);
    }
    const auto* special = std::find(std::begin(Specials), std::end(Specials), letter);
    return special == std::end(Specials)
               ? '?'
               : static_cast<char>(First_Special + (special - std::begin(Specials)));
}

}  // namespace

QString From_ANSI(const std::string& text) {
    QString result;
    for (const char character : text) result += QChar(Letter_Of(static_cast<unsigned char>(character)));
    return result;
}

std::string To_ANSI(const QString& text) {
    std::string result;
    for (const QChar letter : text) result += Code_Of(letter.unicode());
    return result;
}
