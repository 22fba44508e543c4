#include "synth/patch.h"

std::array<std::uint8_t, Patch_Size> Patch_Data = {};

void Patch_Init() {
    Patch_Data.fill(0);
    Patch_Data[Patch_UDTune] = 64;
}
