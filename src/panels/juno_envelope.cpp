#include "panels/juno_envelope.h"

#include "synth/juno.h"

namespace {

constexpr int Width = 378;
constexpr int Height = 135;
constexpr float Margin = 5;              // of the axes from the picture's edges
constexpr float Base = Height - Margin;  // the line of level 0
constexpr float Plateau = 100;           // as long as a time of 100
constexpr float Highest_Level = 127;

constexpr Line_Shape LineYaxis = {Margin, Base - Highest_Level, Margin, Base};
constexpr Line_Shape LineXaxis = {Margin, Base, Width - Margin, Base};
constexpr std::array Axes = {LineYaxis, LineXaxis};

}  // namespace

Control PictureEnv = {.name = "PictureEnv",
                      .spoken_name = "Envelope",
                      .window = &Editor_Juno,
                      .left = 90,
                      .top = 136,
                      .width = Width,
                      .height = Height,
                      .visible = false};

std::array<Line_Shape, 5> LineEnv = {};

const Panel_Graph Juno_Envelope = {.picture = PictureEnv, .axes = Axes, .curve = LineEnv};

void Juno_Draw_Envelope() {
    float time = 0;
    float x = Margin;
    float y = Base;
    std::size_t item = 0;
    const auto draw_to = [&](float duration, float level) {
        time += duration;
        Line_Shape& line = LineEnv[item++];
        line = {x, y, Margin + time / 2, Base - level};
        x = line.x2;
        y = line.y2;
    };
    draw_to(Juno_Data[Juno_T1], Juno_Data[Juno_L1]);
    draw_to(Juno_Data[Juno_T2], Juno_Data[Juno_L2]);
    draw_to(Juno_Data[Juno_T3], Juno_Data[Juno_L3]);
    draw_to(Plateau, Juno_Data[Juno_L3]);
    draw_to(Juno_Data[Juno_T4], 0);
    PictureEnv.visible = true;
}
