#include "panels/juno_printing.h"

#include <algorithm>
#include <array>
#include <vector>

#include "panels/control_printing.h"
#include "platform/numbers.h"
#include "synth/juno.h"

namespace {

// clang-format off
const std::array<Panel_Group, 7> Groups = {{
    {"DCO",    {6, 12.5},    Box(0.5, 2.5, 527.5, 133.5)},
    {"LFO",    {6, 148},   Box(0.5, 136.5, 77.5, 268.5)},
    {"VCF",    {86, 148},  Box(80.5, 136.5, 378.5, 268.5)},
    {"VCA",    {387, 148}, Box(381.5, 136.5, 527.5, 268.5)},
    {"CHORUS", {6, 282.5},   Box(0.5, 271.5, 93.5, 401.5)},
    {"ENV",    {102, 282.5}, {{96.5, 271.5}, {356.5, 271.5}, {356.5, 454.5}, {0.5, 454.5}, {0.5, 404.5}, {96.5, 404.5}}},
    {"BENDER", {365, 282.5}, Box(359.5, 271.5, 412.5, 343.5)},
}};

// -- captions and positions -------------------------------------------------------------------------------

using Positions_List = std::vector<Switch_Position>;

constexpr double Wave_Width = 14;

const Positions_List None       = {};
const Positions_List Ranges     = {{"4'"}, {"8'"}, {"16'"}, {"32'"}};
const Positions_List Dco_Modes  = {{"ENV", Symbol::Envelope}, {"ENV inverted", Symbol::Envelope_Inverted},
                                   {"ENV with dynamics", Symbol::Envelope, "D"}, {"ENV inverted with dynamics", Symbol::Envelope_Inverted, "D"}};
const Positions_List Vcf_Modes  = {{"ENV", Symbol::Envelope}, {"ENV inverted", Symbol::Envelope_Inverted},
                                   {"ENV with dynamics", Symbol::Envelope, "D"}, {"DYN"}};
const Positions_List Vca_Modes  = {{"ENV", Symbol::Envelope}, {"GATE", Symbol::Gate},
                                   {"ENV with dynamics", Symbol::Envelope, "D"}, {"GATE with dynamics", Symbol::Gate, "D"}};
const Positions_List Pulses     = {{"OFF"}, {"Square", Symbol::Square, "1", Wave_Width}, {"Pulse", Symbol::Pulse, "2", Wave_Width},
                                   {"Pulse Width Modulation", Symbol::Pulse_Modulated, "3", Wave_Width}};
const Positions_List Saws       = {{"OFF"}, {"Sawtooth 1", Symbol::Sawtooth, "1", Wave_Width}, {"Sawtooth 2", Symbol::Saw_Half, "2", Wave_Width},
                                   {"Sawtooth 3", Symbol::Saw_Modulated, "3", Wave_Width}, {"Sawtooth 4", Symbol::Saw_Twice, "4", Wave_Width},
                                   {"Sawtooth 5", Symbol::Saw_Thrice, "5", Wave_Width}};
const Positions_List Subs       = {{"Sub 0", Symbol::Sub_Square, "0", Wave_Width}, {"Sub 1", Symbol::Sub_Pulse, "1", Wave_Width},
                                   {"Sub 2", Symbol::Sub_Twice, "2", Wave_Width}, {"Sub 3", Symbol::Sub_Thrice, "3", Wave_Width},
                                   {"Sub 4", Symbol::Square, "4", Wave_Width}, {"Sub 5", Symbol::Pulse, "5", Wave_Width}};
const Positions_List Off_To_3   = {{"OFF"}, {"1"}, {"2"}, {"3"}};
const Positions_List Hpf        = {{"0"}, {"1"}, {"2"}, {"3"}};
const Positions_List Off_On     = {{"OFF"}, {"ON"}};

struct Caption_Row {
    int parameter;
    const char* caption;
    const Positions_List* positions;  // from 0 on
};

const std::array<Caption_Row, 36> Captions = {{
//   param.  caption     positions
    {0,      "MODE",     &Dco_Modes},
    {1,      "MODE",     &Vcf_Modes},
    {2,      "MODE",     &Vca_Modes},
    {3,      "PULSE",    &Pulses},
    {4,      "SAW",      &Saws},
    {5,      "SUB",      &Subs},
    {6,      "RANGE",    &Ranges},
    {7,      "LEVEL",    &Off_To_3},
    {8,      "NOISE",    &Off_To_3},
    {9,      "HPF",      &Hpf},
    {10,     "SWITCH",   &Off_On},
    {11,     "LFO",      &None},
    {12,     "ENV",      &None},
    {13,     "AFTER",    &None},
    {14,     "PWM",      &None},
    {15,     "RATE",     &None},
    {16,     "FREQ",     &None},
    {17,     "RES",      &None},
    {18,     "LFO",      &None},
    {19,     "ENV",      &None},
    {20,     "KEY",      &None},
    {21,     "AFTER",    &None},
    {22,     "LEVEL",    &None},
    {23,     "AFTER",    &None},
    {24,     "RATE",     &None},
    {25,     "DELAY",    &None},
    {26,     "T1",       &None},
    {27,     "L1",       &None},
    {28,     "T2",       &None},
    {29,     "L2",       &None},
    {30,     "T3",       &None},
    {31,     "L3",       &None},
    {32,     "T4",       &None},
    {33,     "KEY",      &None},
    {34,     "RATE",     &None},
    {35,     "RANGE",    &None},
}};
// clang-format on

const Caption_Row& Caption_Of(const Juno_Row& row) {
    for (const Caption_Row& caption : Captions) {
        if (caption.parameter == row.parameter) return caption;
    }
    throw Fatal_Error(std::string("No caption for ") + row.control);
}

int Highest(const Juno_Row& row) {
    return row.type == Juno_Type::Slider ? 127 : row.positions - 1;
}

Thumb_Reach Reach_Of(const Juno_Row& row) {
    const int far_row = row.row - Juno_Rise(row, Highest(row));
    return {row.left, std::min(row.row, far_row), std::max(row.row, far_row)};
}

std::vector<Thumb_Reach> Reaches() {
    std::vector<Thumb_Reach> reaches;
    for (const Juno_Row& row : Juno_Table) reaches.push_back(Reach_Of(row));
    return reaches;
}

// -- what is printed at each type of control --------------------------------------------------------------

// The names of switches stand level with those of the sliders beside them, which start a little lower.
int Caption_Row_Of(const Thumb_Reach& reach) {
    constexpr int Little = 2;
    for (const Juno_Row& row : Juno_Table) {
        const int slider_top = row.row - Slider_Travel;
        const int lower = slider_top - reach.top_row;
        if (row.type == Juno_Type::Slider && lower > 0 && lower <= Little) return slider_top;
    }
    return reach.top_row;
}

void Print_Switch_Row(Printing& printing, const Juno_Row& row) {
    const Thumb_Reach reach = Reach_Of(row);
    Print_Switch_Caption(printing, Caption_Of(row).caption, row.left, Caption_Row_Of(reach), false);
    Print_Rail(printing, reach);
    const Positions_List& positions = *Caption_Of(row).positions;
    for (std::size_t position = 0; position < positions.size(); ++position) {
        Print_Position(printing, positions[position], row.left,
                       Juno_Middle(row, static_cast<int>(position)), false);
    }
}

// A mark a semitone stands too close to be named; the ends and the middle are.
void Print_Bender(Printing& printing, const Juno_Row& row) {
    for (int semitones = 0; semitones < row.positions; ++semitones) {
        const double y = Juno_Middle(row, semitones);
        const bool named = semitones % 6 == 0;
        const double right = row.left - 1;
        const double length = named ? 5 : 3;
        printing.lines.push_back({{{right - length, y}, {right, y}}, 1, named ? Ink::Print : Ink::Faint});
        if (!named) continue;
        printing.texts.push_back({std::to_string(semitones),
                                  {right - length - 1, y + Digit_Half_Height},
                                  Align::Right,
                                  Scale_Size,
                                  Ink::Print});
    }
}

// -- the envelope's stages below their sliders ------------------------------------------------------------

// A piece of the curve: where it ends, and what the way there and its end are called.
struct Stage {
    Print_Point end;
    const char* time;  // "" for the way along the plateau
    const char* level;
    Print_Point level_at;
    Align level_align;
};

constexpr double Stage_Base = 439;
constexpr Print_Point Key_On = {52, Stage_Base};
constexpr Print_Point Key_Off = {268, 419};
const std::array<Stage, 5> Stages = {{
    {{104, 416}, "T1", "L1", {104, 413}, Align::Centre},
    {{156, 430}, "T2", "L2", {161, 437}, Align::Left},
    {{208, 419}, "T3", "L3", {208, 415}, Align::Centre},
    {Key_Off, "", "", {}, Align::Left},
    {{326, Stage_Base}, "T4", "", {}, Align::Left},
}};

void Print_Name(Printing& printing, const char* name, Print_Point at, Align align) {
    if (*name != '\0') printing.texts.push_back({name, at, align, Caption_Size, Ink::Print});
}

void Print_Stages(Printing& printing) {
    constexpr double Name_Line = 450;
    printing.lines.push_back({{Key_On, {332, Stage_Base}}, 1, Ink::Frame});
    Print_Line curve = {{Key_On}, 1.5, Ink::Heading};
    for (const Stage& stage : Stages) {
        const double middle = (curve.points.back().x + stage.end.x) / 2;
        Print_Name(printing, stage.time, {middle, Name_Line}, Align::Centre);
        Print_Name(printing, stage.level, stage.level_at, stage.level_align);
        if (stage.end.y < Stage_Base)
            printing.lines.push_back({{stage.end, {stage.end.x, Stage_Base}}, 1, Ink::Frame});
        curve.points.push_back(stage.end);
    }
    printing.lines.push_back(curve);
    printing.texts.push_back({"KEY ON", {Key_On.x - 5, Stage_Base}, Align::Right, Scale_Size, Ink::Faint});
    printing.texts.push_back(
        {"KEY OFF", {Key_Off.x + 3, Key_Off.y - 2}, Align::Left, Scale_Size, Ink::Faint});
}

}  // namespace

double Juno_Middle(const Juno_Row& row, int value) {
    return row.row - Juno_Rise(row, value) + Thumb_Half;
}

std::string Juno_Caption(const Juno_Row& row) {
    return Caption_Of(row).caption;
}

std::string Juno_Position_Name(const Juno_Row& row, int position) {
    const Positions_List& positions = *Caption_Of(row).positions;
    const auto index = static_cast<std::size_t>(position);
    return position < 0 || index >= positions.size() ? "" : positions[index].name;
}

Printing Juno_Printing() {
    Printing printing;
    for (const Panel_Group& group : Groups) Print_Group(printing, group);
    for (const Juno_Row& row : Juno_Table) {
        const Thumb_Reach reach = Reach_Of(row);
        if (row.type == Juno_Type::Slider) {
            Print_Slider(printing, Caption_Of(row).caption,
                         {.left = row.left,
                          .top_row = reach.top_row,
                          .marks_right = Marks_Fit_Right(reach, Reaches())});
        } else {
            Print_Switch_Row(printing, row);
        }
        if (row.parameter == Juno_Bender_Range) Print_Bender(printing, row);
        if (row.parameter == Juno_Sub_Level) {
            // Which level; the name itself stands below it.
            printing.texts.push_back(
                {"SUB", {row.left + 1.0, reach.top_row - 14.0}, Align::Centre, Caption_Size, Ink::Print});
        }
    }
    Print_Stages(printing);
    printing.texts.push_back({"TONE NAME", {438.5, 375}, Align::Centre, Caption_Size, Ink::Print});
    printing.texts.push_back({"ALPHA JUNO", {438.5, 440}, Align::Centre, 20, Ink::Heading});
    return printing;
}
