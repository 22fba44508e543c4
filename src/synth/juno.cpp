#include "synth/juno.h"

#include "platform/numbers.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

// Where the name's characters stand in the instrument's code.
constexpr std::uint8_t Code_Small_Letters = 26;
constexpr std::uint8_t Code_Figures = 52;
constexpr std::uint8_t Code_Blank = 62;
constexpr std::uint8_t Code_Minus = 63;

std::uint8_t Code_In_Row(std::uint8_t character, char first, std::uint8_t first_code) {
    return static_cast<std::uint8_t>(character - first + first_code);
}

// Random's limits. Drawing cuts the fraction, so the highest of a switch's positions is one below its
// limit; sliders never reach 127, the bender never 12, and the chorus is off twice as often as on.
constexpr double Four_Positions = 4;
constexpr double Six_Positions = 6;
constexpr double Off_Or_On = 1.5;
constexpr double Bender_Limit = 12;
constexpr double Slider_Limit = 127;

double Limit_Of(std::size_t parameter) {
    if (parameter == Juno_SawTooth || parameter == Juno_Sub) return Six_Positions;
    if (parameter < Juno_Chorus) return Four_Positions;
    if (parameter == Juno_Chorus) return Off_Or_On;
    return parameter == Juno_Bender_Range ? Bender_Limit : Slider_Limit;
}

// The name's ten bytes: the characters in the instrument's code, blanks behind them.
void Name_To_Data(const std::string& name) {
    for (std::size_t place = 0; place < Tone_Name_Size; ++place) {
        const char character = place < name.size() ? name[place] : ' ';
        Juno_Data[Juno_Name_Place + place] = Juno_Char_To_Code(static_cast<std::uint8_t>(character));
    }
}

// The names that the program gives are in small letters in the bytes; panels show capitals.
void New_Tone() {
    Juno_Data.fill(0);
    Tone_Name_Text = "NEW";
    Name_To_Data("new");
    Juno_To_Panel();
}

void Random_Tone(const Random_Draw& draw) {
    for (std::size_t parameter = 0; parameter < Juno_Name_Place; ++parameter)
        Juno_Data[parameter] = draw(Limit_Of(parameter));
    Tone_Name_Text = "RANDOM";
    Name_To_Data("random");
    Juno_To_Panel();
}

}  // namespace

std::array<std::uint8_t, Juno_Size> Juno_Data = {};
std::array<std::uint8_t, Juno_Size> Juno_Undo = {};

std::uint8_t& Juno_Byte(std::size_t parameter) {
    if (parameter >= Juno_Size) throw Fatal_Error("Subscript out of range");
    return Juno_Data[parameter];
}

std::uint8_t Juno_Char_To_Code(std::uint8_t character) {
    if (character >= 'A' && character <= 'Z') return Code_In_Row(character, 'A', 0);
    if (character >= 'a' && character <= 'z') return Code_In_Row(character, 'a', Code_Small_Letters);
    if (character >= '0' && character <= '9') return Code_In_Row(character, '0', Code_Figures);
    return character == '-' ? Code_Minus : Code_Blank;
}

std::uint8_t Juno_Code_To_Char(std::uint8_t code) {
    if (code < Code_Small_Letters) return static_cast<std::uint8_t>('A' + code);
    if (code < Code_Figures) return static_cast<std::uint8_t>('a' + code - Code_Small_Letters);
    if (code < Code_Blank) return static_cast<std::uint8_t>('0' + code - Code_Figures);
    return code == Code_Minus ? '-' : ' ';
}

std::string Juno_Name_From_Data() {
    std::string name;
    for (std::size_t place = 0; place < Tone_Name_Size; ++place)
        name += static_cast<char>(Juno_Code_To_Char(Juno_Data[Juno_Name_Place + place]));
    return Tone_Name_Of(name);
}

void Juno_Install() {
    Juno_Tone_Init = New_Tone;
    Juno_Tone_Random = Random_Tone;
    Juno_Name_To_Data = Name_To_Data;
    Juno_Undo_Store = [] { Juno_Undo = Juno_Data; };
    Juno_Undo_Restore = [] { Juno_Data = Juno_Undo; };
}
