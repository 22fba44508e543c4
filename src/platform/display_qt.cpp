#include "platform/display.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/files.h"

namespace {

// The toolkit's numbers of the font files that were added.
std::map<std::string, int> Added_Fonts;

using Library = std::unique_ptr<FT_LibraryRec_, decltype(&FT_Done_FreeType)>;
using Face = std::unique_ptr<FT_FaceRec_, decltype(&FT_Done_Face)>;

Library Library_Opened() {
    FT_Library library = nullptr;
    return {FT_Init_FreeType(&library) == 0 ? library : nullptr, FT_Done_FreeType};
}

Face Face_Opened(const Library& library, std::string_view bytes, FT_Long number) {
    FT_Face face = nullptr;
    const bool good = FT_New_Memory_Face(library.get(), reinterpret_cast<const FT_Byte*>(bytes.data()),
                                         static_cast<FT_Long>(bytes.size()), number, &face) == 0;
    return {good ? face : nullptr, FT_Done_Face};
}

// Whether every character has an outline of a letter's size, however the desktop wants it hinted.
bool Characters_Are_Sound(FT_Face face) {
    constexpr FT_UInt Size = 32;              // in pixels
    constexpr FT_Pos Limit = 16 * Size * 64;  // sixteen letters, in 64ths of a pixel
    constexpr std::array<FT_Int32, 3> Hintings = {FT_LOAD_NO_HINTING, FT_LOAD_TARGET_LIGHT,
                                                  FT_LOAD_TARGET_NORMAL};
    if (FT_Set_Pixel_Sizes(face, 0, Size) != 0) return false;
    for (FT_Long glyph = 0; glyph < face->num_glyphs; ++glyph) {
        for (const FT_Int32 hinting : Hintings) {
            if (FT_Load_Glyph(face, static_cast<FT_UInt>(glyph), hinting) != 0) return false;
            if (face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) return false;
            FT_BBox box = {};
            FT_Outline_Get_CBox(&face->glyph->outline, &box);
            if (std::min(box.xMin, box.yMin) < -Limit || std::max(box.xMax, box.yMax) > Limit) return false;
        }
    }
    return true;
}

// Whether the toolkit can draw with the font. It takes fonts in which a damaged outline is thousands of
// letters wide, for which there is no picture, and then dies of the picture that it has not got.
bool Font_Is_Sound(std::string_view bytes) {
    const Library library = Library_Opened();
    if (!library) return false;
    FT_Long faces = 1;
    for (FT_Long number = 0; number < faces; ++number) {
        const Face face = Face_Opened(library, bytes, number);
        if (!face || !FT_IS_SCALABLE(face) || FT_HAS_MULTIPLE_MASTERS(face)) return false;
        if (face->family_name == nullptr) return false;  // cut off: nobody could ask for it
        if (!Characters_Are_Sound(face.get())) return false;
        faces = face->num_faces;
    }
    return true;
}

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
    constexpr std::uintmax_t Largest = 16U << 20U;
    std::error_code error;
    if (std::filesystem::file_size(path, error) > Largest) return false;
    const std::optional<std::string> bytes = File_Read_Whole(path);
    if (!bytes || !Font_Is_Sound(*bytes)) return false;
    const int number = QFontDatabase::addApplicationFontFromData(QByteArray::fromStdString(*bytes));
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
