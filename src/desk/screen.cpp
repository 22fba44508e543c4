#include "desk/screen.h"

std::int16_t Screen_PPI = 0;
float Font_Scale = 1;

double Twips_Per_Pixel() {
    return Screen_PPI == 0 ? 15.0 : 1440.0 / Screen_PPI;
}
