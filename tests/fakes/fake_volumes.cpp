#include "fakes/fake_volumes.h"

#include "platform/volumes.h"

std::vector<std::string> Volumes = {"/"};

std::vector<std::string> Mounted_Volumes() {
    return Volumes;
}
