#include "filedlg/options.h"

std::int16_t FD_Left = 0;
std::int16_t FD_Top = 0;
std::uint8_t Soundcheck_Mode = 0;
std::uint8_t Soundcheck_Note = 24;
std::uint8_t Soundcheck_Velocity = 80;
