#include "panels/tune_knob.h"

#include "panels/controls.h"
#include "panels/editor_table.h"
#include "panels/steps.h"
#include "synth/tuning.h"

namespace {

constexpr double Pixels_A_Semitone = 4;

std::uint8_t Turn_To(double semitones) {
    Panel_Scratch_Real = semitones;
    Panel_Knob_Dot(Dot_Centre_Left, Dot_Centre_Top, Degrees_A_Semitone);
    return Panel_Tune_To_Byte(semitones);
}

}  // namespace

std::uint8_t Tune_Knob_Key(std::uint8_t byte, int key) {
    return Turn_To(Tune_Step(Panel_Tune_From_Byte(byte), key));
}

std::uint8_t Tune_Knob_Drag(std::uint8_t byte, double pointer) {
    const std::int16_t movement = Panel_Knob_Movement(pointer / Pixels_A_Semitone);
    return Turn_To(Clamped(Panel_Tune_From_Byte(byte) + movement, -12, 12));
}
