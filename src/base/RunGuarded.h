#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

/// Runs a command of the user so that no exception leaves it: the event loop that called it cannot pass one
/// on. Memory that ran out is reported, and the program goes on with what it holds; anything else is a fault
/// of the program and ends it.
void RunGuarded(const std::function<void()>& command, const Seams& seams);

} // namespace ls
