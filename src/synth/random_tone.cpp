#include "synth/random_tone.h"

#include "desk/menus.h"
#include "desk/windows.h"
#include "platform/event_loop.h"
#include "platform/random.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/tone_name.h"
#include "synth/undo.h"
#include "synth/views.h"

namespace {

constexpr double Parameter_Limit = 127;

}  // namespace

void Tone_Random() {
    Random_Seed_By_Clock();
    const Random_Draw draw = [](double limit) { return static_cast<std::uint8_t>(Random_Next() * limit); };

    if (!Is_True(Tone_Saved)) Undo_Store();

    if (Is_Alpha_Juno()) {
        Juno_Tone_Random(draw);
    } else {
        for (std::size_t parameter = Tone_Name_Size; parameter < Tone_Size; ++parameter)
            Tone_Data[parameter] = draw(Parameter_Limit);
        Patch_Init();
        // The name's bytes are still the old ones, and so the display keeps the old name until
        // Timer_Display ticks.
        Panel_Apply_Tone();
    }
    Tone_Name_Text = "RANDOM";
    Tone_Name_To_Data();
    if (Is_True(Patch_Window_Open)) Panel_Apply_Patch();
    Tone_Send();
    Tone_Saved = Flag_16::False;
    Menu(Menu_Edit_Undo).enabled = true;
    Event_Loop_Turn();
}
