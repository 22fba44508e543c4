// Any text where the program reads one from outside: the system's list of mounts, the names of MIDI ports,
// numbers, patterns and paths typed into the file window, and a tone's name. Each against what must hold of
// the result, and most against a second reading written here.
//
//   byte 0   which of them; then the text
#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>

#include "desk/settings.h"
#include "feed.h"
#include "filedlg/folder_commands.h"
#include "filedlg/folder_model.h"
#include "platform/mounts.h"
#include "platform/numbers.h"
#include "platform/port_names.h"
#include "platform/text.h"
#include "synth/juno.h"
#include "synth/tone.h"
#include "synth/tone_name.h"

namespace {

// -- mounts ----------------------------------------------------------------------------------------------

std::string Escaped(std::string_view path) {
    std::string text;
    for (const char letter : path) {
        if (letter == ' ' || letter == '\t' || letter == '\n' || letter == '\\') {
            constexpr std::string_view Digits = "01234567";
            const auto code = static_cast<unsigned char>(letter);
            text += '\\';
            for (const unsigned shift : {6U, 3U, 0U}) text += Digits[(code >> shift) & 7U];
        } else {
            text += letter;
        }
    }
    return text;
}

void Mounts(std::string_view text) {
    const std::vector<std::string> volumes = Volumes_In(text);
    Check(!volumes.empty() && volumes.front() == "/");
    Check(std::is_sorted(volumes.begin() + 1, volumes.end()));
    Check(std::set<std::string>(volumes.begin(), volumes.end()).size() == volumes.size());
    for (std::size_t index = 1; index < volumes.size(); ++index) {
        Check(volumes[index].size() > 1 && volumes[index].front() == '/');
        for (const char* own : {"/proc", "/sys", "/dev", "/boot", "/snap", "/var/lib"})
            Check(volumes[index] != own && !volumes[index].starts_with(std::string(own) + "/"));
    }
    // A stick at this folder is found, whatever its name, behind any list.
    std::string folder = "/media/" + std::string(text.substr(0, 40));
    std::erase_if(folder, [](char letter) { return letter == '\v' || letter == '\f' || letter == '\r'; });
    const std::string line = "\n/dev/sdb1 " + Escaped(folder) + " vfat rw 0 0\n";
    const std::vector<std::string> with = Volumes_In(std::string(text) + line);
    Check(std::find(with.begin(), with.end(), folder) != with.end());
    for (const std::string& volume : volumes)
        Check(std::find(with.begin(), with.end(), volume) != with.end());
}

// -- names of ports --------------------------------------------------------------------------------------

void Port_Names(std::string_view text) {
    std::vector<std::string> raw;
    for (;;) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        raw.emplace_back(text.substr(0, end));
        if (end == text.size()) break;
        text.remove_prefix(end + 1);
    }
    const std::vector<std::string> names = Port_Names_Stable(raw);
    Check(names.size() == raw.size());
    std::set<std::string> seen;
    for (const std::string& name : names) {
        Check(name.size() <= Longest_Port_Name && Trimmed(name) == name && seen.insert(name).second);
        for (const char letter : name) Check(static_cast<unsigned char>(letter) >= ' ' && letter != 0x7F);
        // As the settings file brings it back.
        Check(Cut_To_Bytes(name, Longest_Port_Name) == name && Cut_At_Zero(name) == name);
    }
    // Names that are stable stay as they are, but for what looks like an address.
    const bool addressed = std::any_of(names.begin(), names.end(), [](const std::string& name) {
        return !name.empty() && name.back() >= '0' && name.back() <= '9' &&
               name.find(':') != std::string::npos;
    });
    if (!addressed) Check(Port_Names_Stable(names) == names);
}

// -- numbers ---------------------------------------------------------------------------------------------

void Numbers(std::string_view text) {
    const double number = Number_At_Start(text);
    Check(std::isfinite(number));
    // What stands behind a number does not count, and blanks before it do not either.
    Check(Number_At_Start(" \t" + std::string(text)) == number);
    const std::string_view trimmed = Trimmed(text);
    const char first = trimmed.empty() ? ' ' : trimmed.front();
    if (!(first >= '0' && first <= '9') && first != '-' && first != '+' && first != '.') Check(number == 0);
    if (first >= '1' && first <= '9' && trimmed.size() < 9) {
        long whole = 0;
        const auto read = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), whole);
        const char behind = read.ptr == trimmed.data() + trimmed.size() ? ' ' : *read.ptr;
        if (behind != '.' && behind != 'e' && behind != 'E') Check(number == static_cast<double>(whole));
    }
    // Seven digits come back; a place in pixels is one of them.
    const auto single = static_cast<float>(number);
    if (!std::isfinite(single)) return;
    const std::string plain = Plain_Number(single);
    Check(plain.find_first_not_of("-.0123456789") == std::string::npos && !plain.empty());
    Check(plain.find('.') == std::string::npos || (plain.back() != '0' && plain.back() != '.'));
    const double back = Number_At_Start(plain);
    Check(std::abs(back - static_cast<double>(single)) <= std::abs(static_cast<double>(single)) * 1e-6);
    if (std::abs(number) > 32767) return;
    const double twips = std::nearbyint(number);
    for (const double pixel : {15.0, 12.0}) {
        const std::string place = Plain_Number(static_cast<float>(twips) / static_cast<float>(pixel));
        Check(std::nearbyint(Number_At_Start(place) * pixel) == twips);
    }
}

// -- paths and patterns ----------------------------------------------------------------------------------

void Paths(std::string_view text) {
    const std::string path(text);
    const std::string parent = FD_Parent_Dir(path);
    Check(parent.ends_with('/') && parent.size() <= path.size() + 1);
    Check(parent == "/" || path.starts_with(parent));
    Check(FD_Parent_Dir("/") == "/");
    // Up and up ends at the root.
    std::string up = path;
    for (std::size_t step = 0; step <= path.size(); ++step) up = FD_Parent_Dir(up);
    Check(up == "/");
    if (text.find('/') == std::string_view::npos && !text.empty())
        Check(FD_Parent_Dir("/music/" + path) == "/music/" &&
              FD_Parent_Dir("/music/" + path + "/") == "/music/");

    std::string slashed = path;
    Check(Path_Add_Slash(slashed) == slashed && slashed.ends_with('/'));
    Check(slashed.starts_with(Right_Trimmed(path)) && slashed.size() <= path.size() + 1);
    std::string again = slashed;
    Check(Path_Add_Slash(again) == slashed);
}

bool Fits(std::string_view name, std::string_view pattern) {
    // Which beginnings of the name the pattern's beginning takes.
    std::vector<bool> taken(name.size() + 1, false);
    taken[0] = true;
    for (const char letter : pattern) {
        std::vector<bool> next(name.size() + 1, false);
        for (std::size_t length = 0; length <= name.size(); ++length) {
            if (!taken[length]) continue;
            if (letter == '*') {
                std::fill(next.begin() + static_cast<std::ptrdiff_t>(length), next.end(), true);
                break;
            }
            if (length == name.size()) continue;
            if (letter == '?' ||
                Upper_Text(name.substr(length, 1)) == Upper_Text(std::string_view(&letter, 1)))
                next[length + 1] = true;
        }
        taken = next;
    }
    return taken.back();
}

void Patterns(std::string_view text) {
    const std::size_t parting = std::min(text.find('\n'), text.size());
    const std::string name(text.substr(0, std::min<std::size_t>(parting, 40)));
    const std::string pattern(text.substr(std::min(parting + 1, text.size())).substr(0, 40));
    bool expected = false;
    std::string_view rest = pattern;
    for (;;) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        const std::string_view one = rest.substr(0, end);
        expected = expected || one == "*.*" || (!one.empty() && Fits(name, one));
        if (end == rest.size()) break;
        rest.remove_prefix(end + 1);
    }
    Check(Falls_Under(name, pattern) == expected);
}

// -- a tone's name ---------------------------------------------------------------------------------------

void Tone_Names(std::string_view text) {
    Tone_Data.fill(0xEE);
    Tone_Name_Text = std::string(text);
    Tone_Name_To_Data();
    for (std::size_t place = 0; place < Tone_Size; ++place) {
        const int expected = place > Tone_Name_Size
                                 ? 0xEE
                                 : (place < text.size() ? static_cast<std::uint8_t>(text[place]) : ' ');
        Check(Tone_Data[place] == expected);
    }
    const std::string shown = Tone_Name_From_Data();
    Check(shown.size() <= Tone_Name_Size && Tone_Name_Of(shown) == shown);
    for (const char letter : text) {
        const std::uint8_t code = Juno_Char_To_Code(static_cast<std::uint8_t>(letter));
        Check(code < 64);
        const auto back = static_cast<char>(Juno_Code_To_Char(code));
        Check(back == letter || back == ' ');
        Check(Juno_Char_To_Code(static_cast<std::uint8_t>(back)) == code);
        const char any = static_cast<char>(Juno_Code_To_Char(static_cast<std::uint8_t>(letter)));
        Check(any == ' ' ||
              Juno_Char_To_Code(static_cast<std::uint8_t>(any)) == static_cast<std::uint8_t>(letter));
    }
}

// -- text ------------------------------------------------------------------------------------------------

void Cuts(std::string_view text) {
    const std::string_view trimmed = Trimmed(text);
    Check(Trimmed(trimmed) == trimmed && Trimmed(Right_Trimmed(text)) == trimmed);
    Check(Same_Text(Upper_Text(text), text) && Lower_Text(Upper_Text(text)) == Lower_Text(text));
    Check(Upper_Text(text).size() == text.size());
    for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, std::size_t{5}, std::size_t{63}}) {
        const std::string_view cut = Cut_To_Bytes(text, bytes);
        Check(cut.size() <= bytes && text.starts_with(cut));
        Check(cut.size() + 3 >= std::min(bytes, text.size()));
    }
    Check(Cut_At_Zero(text).find('\0') == std::string_view::npos && text.starts_with(Cut_At_Zero(text)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr void (*Readers[])(std::string_view) = {Mounts,   Port_Names, Numbers, Paths,
                                                     Patterns, Tone_Names, Cuts};
    Feed feed(data, size);
    const auto reader = static_cast<std::size_t>(feed.Below(std::size(Readers)));
    Readers[reader](feed.Rest());
    return 0;
}
