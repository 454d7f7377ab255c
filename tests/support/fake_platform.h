#pragma once
// The fake platform is a library of its own, shared by the tests and the probe.
#include "platform/fake/fake_platform.h"
