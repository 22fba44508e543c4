#include "synth/tone_name.h"

#include "synth/tone.h"

void Tone_Name_To_Data() {
    constexpr std::uint8_t Blank = 32;
    for (std::size_t place = 0; place <= Tone_Name_Size; ++place) {
        Tone_Data[place] =
            place < Tone_Name_Text.size() ? static_cast<std::uint8_t>(Tone_Name_Text[place]) : Blank;
    }
}
