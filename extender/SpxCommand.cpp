#include "SpxCommand.h"

SpxCommand::SpxCommand() = default;

SpxCommand::~SpxCommand() = default;
