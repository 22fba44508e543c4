#include "synth/patch.h"

#include "platform/numbers.h"

std::array<std::uint8_t, Patch_Size> Patch_Data = {};

std::uint8_t& Patch_Byte(std::size_t number) {
    if (number >= Patch_Size) throw Fatal_Error("Subscript out of range");
    return Patch_Data[number];
}

void Patch_Init() {
    Patch_Data.fill(0);
    Patch_Data[Patch_UDTune] = 64;
}
