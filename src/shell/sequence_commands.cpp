#include "shell/sequence_commands.h"

#include "desk/menus.h"
#include "sequencer/seq_commands.h"

void Sequence_Commands_Install() {
    Menu(Menu_File_Seq_New).chosen = [] { File_Seq_New_Chosen(); };
    Menu(Menu_File_Seq_Open).chosen = File_Seq_Open_Chosen;
    Menu(Menu_File_Seq_Save).chosen = File_Seq_Save_Chosen;
    Menu(Menu_File_Seq_SaveAs).chosen = [] { Seq_Save_As(); };
    Menu(Menu_File_Seq_1).chosen = [] { File_Seq_Recent_Chosen(1); };
    Menu(Menu_File_Seq_2).chosen = [] { File_Seq_Recent_Chosen(2); };
    Menu(Menu_File_Seq_3).chosen = [] { File_Seq_Recent_Chosen(3); };
    Menu(Menu_File_Seq_4).chosen = [] { File_Seq_Recent_Chosen(4); };
}
