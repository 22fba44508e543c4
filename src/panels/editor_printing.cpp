#include "panels/editor_printing.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "panels/control_printing.h"
#include "panels/knob_printing.h"
#include "platform/numbers.h"

namespace {

// clang-format off
const std::array<Panel_Group, 10> Groups = {{
    {"DCO-1",  {6, 14},    Box(0.5, 2.5, 101.5, 249.5)},
    {"DCO-2",  {110, 14},  {{104.5, 2.5}, {230.5, 2.5}, {230.5, 143.5}, {180.5, 143.5}, {180.5, 249.5}, {104.5, 249.5}}},
    {"MIXER",  {239, 14},  {{233.5, 2.5}, {336.5, 2.5}, {336.5, 329.5}, {233.5, 329.5}, {233.5, 252.5}, {292.5, 252.5}, {292.5, 143.5}, {233.5, 143.5}}},
    {"VCF",    {345, 14},  Box(339.5, 2.5, 464.5, 329.5)},
    {"VCA",    {473, 14},  Box(467.5, 2.5, 527.5, 329.5)},
    {"DCO",    {6, 263},   Box(0.5, 252.5, 101.5, 329.5)},
    {"LFO",    {6, 342.5},   Box(0.5, 332.5, 117.5, 454.5)},
    {"ENV-1",  {126, 342.5}, Box(120.5, 332.5, 298.5, 454.5)},
    {"ENV-2",  {306, 342.5}, Box(300.5, 332.5, 479.5, 454.5)},
    {"CHORUS", {486, 342.5}, Box(482.5, 332.5, 527.5, 454.5)},
}};

// -- captions and positions ---------------------------------------------------------------------------------

using Positions_List = std::array<Switch_Position, 4>;

const Positions_List Ranges     = {{{"16'"}, {"8'"}, {"4'"}, {"2'"}}};
const Positions_List Waves      = {{{"Noise", Symbol::Noise}, {"Square", Symbol::Square}, {"Pulse", Symbol::Pulse}, {"Sawtooth", Symbol::Sawtooth}}};
const Positions_List Crossmod   = {{{"OFF"}, {"SYN1"}, {"SYN2"}, {"XMOD"}}};
const Positions_List Off_To_3   = {{{"OFF"}, {"1"}, {"2"}, {"3"}}};
const Positions_List Hpf        = {{{"0"}, {"1"}, {"2"}, {"3"}}};
const Positions_List Env_Modes  = {{{"ENV-2 inverted", Symbol::Envelope_Inverted, "2"}, {"ENV-2", Symbol::Envelope, "2"},
                                    {"ENV-1 inverted", Symbol::Envelope_Inverted, "1"}, {"ENV-1", Symbol::Envelope, "1"}}};
const Positions_List Vca_Modes  = {{{"GATE"}, {"ENV2"}, {""}, {""}}};
const Positions_List Lfo_Waves  = {{{"Random", Symbol::Random}, {"Square", Symbol::Square}, {"Triangle", Symbol::Triangle}, {""}}};
const Positions_List Chorus     = {{{"OFF"}, {"1"}, {"2"}, {""}}};
const Positions_List None       = {{{""}, {""}, {""}, {""}}};

struct Caption_Row {
    int parameter;
    const char* caption;
    const Positions_List* positions;  // from the lowest up
};

const std::array<Caption_Row, 44> Captions = {{
//   param.  caption     positions
    {11,     "RANGE",    &Ranges},
    {12,     "WAVE",     &Waves},
    {13,     "TUNE",     &None},
    {14,     "LFO",      &None},
    {15,     "ENV",      &None},
    {16,     "RANGE",    &Ranges},
    {17,     "WAVE",     &Waves},
    {18,     "X-MOD",    &Crossmod},
    {19,     "TUNE",     &None},
    {20,     "FINE",     &None},
    {21,     "LFO",      &None},
    {22,     "ENV",      &None},
    {26,     "DYN",      &Off_To_3},
    {27,     "MODE",     &Env_Modes},
    {28,     "DCO-1",    &None},
    {29,     "DCO-2",    &None},
    {30,     "ENV",      &None},
    {31,     "DYN",      &Off_To_3},
    {32,     "MODE",     &Env_Modes},
    {33,     "HPF",      &Hpf},
    {34,     "FREQ",     &None},
    {35,     "RES",      &None},
    {36,     "LFO",      &None},
    {37,     "ENV",      &None},
    {38,     "KEY",      &None},
    {39,     "DYN",      &Off_To_3},
    {40,     "MODE",     &Env_Modes},
    {41,     "LEVEL",    &None},
    {58,     "MODE",     &Vca_Modes},
    {42,     "DYN",      &Off_To_3},
    {44,     "WAVE",     &Lfo_Waves},
    {45,     "DELAY",    &None},
    {46,     "RATE",     &None},
    {47,     "A",        &None},
    {48,     "D",        &None},
    {49,     "S",        &None},
    {50,     "R",        &None},
    {51,     "KEY",      &Off_To_3},
    {52,     "A",        &None},
    {53,     "D",        &None},
    {54,     "S",        &None},
    {55,     "R",        &None},
    {56,     "KEY",      &Off_To_3},
    {43,     "MODE",     &Chorus},
}};
// clang-format on

const Caption_Row& Caption_Of(const Editor_Row& row) {
    for (const Caption_Row& caption : Captions) {
        if (caption.parameter == row.parameter) return caption;
    }
    throw Fatal_Error(std::string("No caption for ") + row.control);
}

std::vector<Thumb_Reach> Reaches() {
    std::vector<Thumb_Reach> reaches;
    for (const Editor_Row& row : Editor_Table) reaches.push_back({row.left, row.top_row, row.bottom_row});
    return reaches;
}

bool Labels_On_Right(const Editor_Row& row) {
    return std::string_view(row.kind) == "br";
}

// -- what is printed at each type of control
// ----------------------------------------------------------------

void Print_Slider_Row(Printing& printing, const Editor_Row& row) {
    // The logo stands to the left of this one.
    const bool figures_right = std::string_view(row.control) == "Mixer_ENV";
    Print_Slider(printing, Caption_Of(row).caption,
                 {.left = row.left,
                  .top_row = row.top_row,
                  .marks_right = Marks_Fit_Right({row.left, row.top_row, row.bottom_row}, Reaches()),
                  .figures_right = figures_right});
}

void Print_Switch_Row(Printing& printing, const Editor_Row& row) {
    const bool right = Labels_On_Right(row);
    Print_Switch_Caption(printing, Caption_Of(row).caption, row.left, row.top_row, right);
    Print_Rail(printing, {row.left, row.top_row, row.bottom_row});
    for (int position = 0; position < Positions(row.type); ++position) {
        const auto index = static_cast<std::size_t>(position);
        Print_Position(printing, (*Caption_Of(row).positions)[index], row.left,
                       Switch_Middle(row, position), right);
    }
}

// One mark a semitone, or one every ten units of fine tune; the ends are numbered.
void Print_Knob(Printing& printing, const Editor_Row& row) {
    const bool fine = row.type == Control_Type::Fine_Knob;
    const int end = fine ? 50 : 12;
    Print_Knob_Marks(printing, {row.left + Knob_Face_X, row.top_row + Knob_Face_Y}, end, fine ? 10 : 1,
                     fine ? Degrees_A_Fine_Unit : Degrees_A_Semitone);
    printing.texts.push_back({Caption_Of(row).caption,
                              {row.left + Knob_Face_X, row.top_row - 11.0},
                              Align::Centre,
                              Caption_Size,
                              Ink::Print});
    const double base_line = row.top_row + 32;
    printing.texts.push_back(
        {"-" + std::to_string(end), {row.left + 1.0, base_line}, Align::Right, Scale_Size, Ink::Print});
    printing.texts.push_back(
        {"+" + std::to_string(end), {row.left + 28.0, base_line}, Align::Left, Scale_Size, Ink::Print});
}

}  // namespace

double Slider_Middle(const Editor_Row& row, int value) {
    const int rise = value * Slider_Travel / 127;  // cut, as the thumb is placed
    return row.bottom_row - rise + Thumb_Half;
}

double Switch_Middle(const Editor_Row& row, int position) {
    return row.bottom_row - position * Switch_Pitch + Thumb_Half;
}

std::string Editor_Caption(const Editor_Row& row) {
    return Caption_Of(row).caption;
}

std::string Editor_Position_Name(const Editor_Row& row, int position) {
    if (!Is_Switch(row.type) || position < 0 || position >= Positions(row.type)) return "";
    return (*Caption_Of(row).positions)[static_cast<std::size_t>(position)].name;
}

Printing Editor_Printing() {
    Printing printing;
    for (const Panel_Group& group : Groups) Print_Group(printing, group);
    for (const Editor_Row& row : Editor_Table) {
        if (row.type == Control_Type::Slider) {
            Print_Slider_Row(printing, row);
        } else if (Is_Knob(row.type)) {
            Print_Knob(printing, row);
        } else {
            Print_Switch_Row(printing, row);
        }
    }
    printing.texts.push_back({"TONE NAME", {165.5, 286}, Align::Centre, Caption_Size, Ink::Print});
    return printing;
}
