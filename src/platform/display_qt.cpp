#include "platform/display.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <map>

namespace {

// The toolkit's numbers of the font files that were added.
std::map<std::string, int> Added_Fonts;

}  // namespace

double Display_Logical_Density() {
    return QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

int Display_Width() {
    return QGuiApplication::primaryScreen()->geometry().width();
}

int Display_Height() {
    return QGuiApplication::primaryScreen()->geometry().height();
}

bool Font_File_Add(const std::string& path) {
    const int number = QFontDatabase::addApplicationFont(QFile::decodeName(path.c_str()));
    if (number >= 0) Added_Fonts[path] = number;
    return number >= 0;
}

int Font_File_Remove(const std::string& path) {
    // The toolkit has no reason for a refusal to tell: 2 is the system's "no such file".
    constexpr int Not_There = 2;
    const auto added = Added_Fonts.find(path);
    if (added == Added_Fonts.end()) return Not_There;
    const bool removed = QFontDatabase::removeApplicationFont(added->second);
    Added_Fonts.erase(added);
    return removed ? 0 : Not_There;
}

// Desktops here have no sounds that a program plays by a classic alias.
bool System_Sound_Play(const std::string&) {
    return false;
}

void Beep() {
    QApplication::beep();
}
