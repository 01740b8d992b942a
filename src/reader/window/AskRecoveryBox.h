#pragma once

#include "recovery/OfferJournals.h"

class QWidget;

namespace ls {

/// Asks in a box over `window` what to do with unsaved edits of an earlier run: "Recover", "Discard" or
/// "Later".
/// Enter means Recover; Escape and the close button mean Later.
[[nodiscard]] RecoveryChoice AskRecoveryBox(QWidget* window, const std::string& question);

} // namespace ls
