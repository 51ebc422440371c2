// SPDX-License-Identifier: MIT
#pragma once

/// What the classifier needs from the operating system: run-time loading and the floating-point
/// control word. Plain C++, no Qt; one source file a platform implements it.
namespace VelorExchange::pnr::platform {

/// Loads the library in the file `path`, given in the system's 8-bit text. Null if that fails.
void* Load(const char* path);

/// The address of the function `name` in a loaded library, null if it has none of that name.
void* Find(void* library, const char* name);

/// Gives back what `Load` returned; never null.
void Free(void* library);

/// The calling thread's control word. On Windows all of it with its bits as the run-time library
/// defines them; elsewhere the set of trapped exceptions as `FE_...` bits.
unsigned int ControlWord();

/// Installs which exceptions trap, out of a word that `ControlWord` gave. Rounding and precision stay.
void SetControlWord(unsigned int word);

/// Forgets all pending exceptions of the calling thread.
void ClearExceptions();

} // namespace VelorExchange::pnr::platform
