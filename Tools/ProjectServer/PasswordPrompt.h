#pragma once

#include "Containers/UnrealString.h"

/**
 * Reads a password from the standard input, one line of UTF-8: at a terminal after a question, without showing what is typed, and
 * a second time to be sure.
 * @return false, with the reason, when there is none, or the two differ
 */
bool ReadPassword(FString& OutPassword, FString& OutReason);
