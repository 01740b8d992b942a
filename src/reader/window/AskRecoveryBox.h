#pragma once

#include "recovery/OfferJournals.h"

class QWidget;

namespace ls {

/// Asks in a box over `window` what is to become of edits that were not saved: "Recover", "Discard" or
/// "Later". Enter recovers; Escape and the close button leave it for later.
[[nodiscard]] RecoveryChoice AskRecoveryBox(QWidget* window, const std::string& question);

} // namespace ls
