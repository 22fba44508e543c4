// What the tests of the settings share: a file to start from and what the run made of it.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "filedlg/options.h"
#include "midi/out.h"
#include "platform/text.h"
#include "shell/frame.h"
#include "shell/settings_file.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace fs = std::filesystem;
using List = std::array<std::string, 4>;
using Lines = std::vector<std::string>;

inline constexpr const char* Devices = "[MIDI]\nOutput=Synth Out\nInput=Keys In\n";

// Values that are no number. The last one is cut when it is read.
inline const Lines No_Numbers = {"", "yes", "nan", "inf", "--1", "\xFF\xFE", std::string(10000, 'x')};

inline List Tones() {
    return {Recent_Tone(1), Recent_Tone(2), Recent_Tone(3), Recent_Tone(4)};
}
inline List Sequences() {
    return {Recent_Seq(1), Recent_Seq(2), Recent_Seq(3), Recent_Seq(4)};
}

inline std::string Touch(const std::string& name) {
    const std::string path = Test_Folder() + "/" + name;
    std::ofstream file(path);
    return path;
}

class Settings_Whole : public Stage {
  protected:
    Settings_Whole() {
        here_ = Test_Folder() + "/Here";
        fs::create_directory(here_);
        fs::current_path(here_);
        INI_File = Test_Folder() + "/Tonebench.INI";
    }
    ~Settings_Whole() override { fs::current_path("/"); }

    // Reads settings that hold this one key.
    static void Read_With(const std::string& section, const std::string& key, const std::string& value) {
        Write_Settings("[" + section + "]\n" + key + "=" + value + "\n");
        Settings_Read();
    }
    static void Read_Position(const std::string& key, const std::string& value) {
        Write_Settings("[Windows]\nSave Positions=1\n" + key + "=" + value + "\n");
        Settings_Read();
    }
    // What the end writes under a key.
    static std::string Written(const char* section, const char* key) {
        Settings_Write();
        return Setting_Get(section, key, "(none)");
    }
    // Four files and a settings file that names them, newest first.
    static List Four_Files(const std::string& key, const std::string& ending) {
        List list;
        std::string text = "[Recent Files]\n";
        for (std::size_t n = 0; n < 4; ++n) {
            list[n] = Upper_Text(Touch(std::string(1, static_cast<char>('a' + n)) + ending));
            text += key + std::to_string(n + 1) + "=" + list[n] + "\n";
        }
        Write_Settings(text);
        return list;
    }

    std::string here_;
};
