#pragma once

namespace zel {

/// A program that crashes leaves its memory on the disk, and with it the patients. Not this one, nor what it
/// starts.
void leaveNoCrashFile();

} // namespace zel
