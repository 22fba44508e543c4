#include "sequencer/seq_commands.h"

#include "desk/recent.h"
#include "platform/message_box.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"

namespace {

Answer Ask_To_Save() {
    return Message_Box("Save actual SEQUENCE first?", Buttons_Set::Yes_No_Cancel, Icon::Question);
}

}  // namespace

Hook<void()> Seq_Save_As;
Hook<void()> Seq_Open;

void File_Seq_New_Chosen(Hook<void()> answered) {
    if (!Is_True(Seq_Saved)) {
        const Answer answer = Ask_To_Save();
        answered();
        if (answer == Answer::Cancel) return;
        if (answer == Answer::No) Seq_Saved = Flag_8::True;
        if (answer == Answer::Yes) {
            Seq_Save_As();
            if (!Is_True(Seq_Saved)) Message_Box("Sequence not saved.", Buttons_Set::Ok, Icon::Exclamation);
        }
    }
    if (Is_True(Seq_Saved)) Seq_New_Reset();
}

void File_Seq_Open_Chosen() {
    if (!Is_True(Seq_Saved)) {
        const Answer answer = Ask_To_Save();
        if (answer == Answer::Cancel) return;
        if (answer == Answer::No) Seq_Saved = Flag_8::True;
        if (answer == Answer::Yes) Seq_Save_As();
    }
    if (Is_True(Seq_Saved)) Seq_Open();
}

void File_Seq_Save_Chosen() {
    // The file window leaves the bare ending when no name was typed.
    if (Seq_File_Path.empty() || Seq_File_Path == ".seq") {
        Seq_Save_As();
    } else {
        const int error = Seq_Write();
        if (error != 0) Seq_Show_Error(error);
    }
}

void File_Seq_Recent_Chosen(int place) {
    if (!Recent_Seq(place).empty()) Seq_Load(Recent_Seq(place), Seq_Mode_Open);
}
