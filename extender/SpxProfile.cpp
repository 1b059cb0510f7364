#include "SpxProfile.h"

SpxProfile::~SpxProfile() = default;
