#include "synth/patch_mks70.h"

#include "platform/numbers.h"

std::array<std::uint8_t, Patch_MKS70_Size> Patch_MKS70_Data = {};
std::string Patch_MKS70_Tone;
std::string Patch_Name_Text;

std::uint8_t& Patch_MKS70_Byte(std::size_t index) {
    if (index >= Patch_MKS70_Size) throw Fatal_Error("Subscript out of range");
    return Patch_MKS70_Data[index];
}

std::vector<std::string> MKS70_Key_Names() {
    std::vector<std::string> names = {"A0", "A#0", "B0"};
    for (int octave = 1; octave <= 7; ++octave) {
        for (const char* name : {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"}) {
            names.push_back(name + std::to_string(octave));
        }
    }
    names.emplace_back("C8");
    return names;
}

std::vector<std::string> MKS70_Tone_Numbers() {
    constexpr int Count = 100;
    std::vector<std::string> numbers;
    for (int number = 1; number <= Count; ++number) numbers.push_back(std::to_string(number));
    return numbers;
}
