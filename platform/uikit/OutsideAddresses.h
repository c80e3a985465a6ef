#pragma once

#include "platform/foundation/URL.h"

namespace quorix::uikit {

/// Whether `url` may be handed to whatever the system opens such addresses with.
///
/// A page can ask for this without a tap, so it must not become a way to local files, to script, to
/// a browser's or the system's own rooms, or to other machines' disks and shells: those schemes are
/// refused. So are a web address without a host, a mail with anything but recipients, subject and
/// text, and a call with the characters that set up a telephone. All else passes, the links into
/// other apps included ("whatsapp:"). Any thread.
bool opensOutside(const foundation::URL& url);

}  // namespace quorix::uikit
