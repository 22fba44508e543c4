#include <gtest/gtest.h>
#include "help/topics.h"
