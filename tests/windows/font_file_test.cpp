// The display's face from a file that may be damaged: what is taken can be drawn with.
#include <fstream>
#include <string>

#include "platform/display.h"
#include "platform/files.h"
#include "windows/screen.h"

// The face that comes with the program, cut, changed, and in its place things that are no font.
class A_Font_File : public Screen {
  protected:
    A_Font_File() : Screen("1"), whole_(File_Read_Whole(Test_Folder() + "/JX8P.FNT").value_or("")) {}

    // Whether a file of these bytes is taken; then it can be given back, once.
    bool Is_Taken(const std::string& bytes) const {
        std::ofstream(path_, std::ios::binary | std::ios::trunc) << bytes;
        const bool taken = Font_File_Add(path_);
        EXPECT_EQ(Font_File_Remove(path_) == 0, taken);
        EXPECT_NE(Font_File_Remove(path_), 0);
        return taken;
    }
    // The font with a number of its table "head" changed.
    std::string With_Units(int units) const {
        std::string bytes = whole_;
        const std::size_t entry = bytes.find("head");
        std::size_t table = 0;
        for (std::size_t byte = 0; byte < 4; ++byte)
            table = table << 8U | static_cast<unsigned char>(bytes[entry + 8 + byte]);
        bytes[table + 18] = static_cast<char>(units >> 8);
        bytes[table + 19] = static_cast<char>(units);
        return bytes;
    }

    std::string whole_;
    std::string path_ = Test_Folder() + "/OTHER.FNT";
};

TEST_F(A_Font_File, is_taken_whole) {
    EXPECT_TRUE(Is_Taken(whole_));
    EXPECT_TRUE(Is_Taken(With_Units(1280)));
}

TEST_F(A_Font_File, with_letters_too_wide_for_a_picture_is_refused) {
    EXPECT_TRUE(Is_Taken(With_Units(128))) << "ten times as large, but letters";
    EXPECT_FALSE(Is_Taken(With_Units(16)));
    EXPECT_FALSE(Is_Taken(File_Read_Whole(SOURCE_DIR "/fuzz/seeds/font/wide_letter.fnt").value_or("")));
}

TEST_F(A_Font_File, that_is_cut_or_none_is_refused) {
    // The names of its letters, which nobody asks for, are the last tenth of the file.
    for (std::size_t size = 0; size < whole_.size() * 9 / 10; size += 97)
        EXPECT_FALSE(Is_Taken(whole_.substr(0, size))) << size;
    EXPECT_FALSE(Is_Taken("Tones=/home/"));
    EXPECT_FALSE(Is_Taken(whole_ + std::string(16U << 20U, '\0'))) << "larger than any font";
    EXPECT_FALSE(Font_File_Add(Test_Folder())) << "a folder";
    EXPECT_FALSE(Font_File_Add("/dev/zero")) << "no plain file";
    EXPECT_FALSE(Font_File_Add(Test_Folder() + "/none.fnt"));
}
