#include "platform/volumes.h"

#include "platform/files.h"
#include "platform/mounts.h"

std::vector<std::string> Mounted_Volumes() {
    return Volumes_In(File_Read_Whole("/proc/self/mounts").value_or(""));
}
