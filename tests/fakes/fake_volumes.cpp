#include "fakes/fake_volumes.h"

#include "platform/volumes.h"

std::vector<std::string> Volumes = {"/"};
std::function<void()> When_Volumes_Are_Asked;

std::vector<std::string> Mounted_Volumes() {
    if (When_Volumes_Are_Asked) When_Volumes_Are_Asked();
    return Volumes;
}
