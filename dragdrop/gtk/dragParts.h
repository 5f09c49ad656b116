// SPDX-License-Identifier: MIT

#pragma once

// The classes of a drag that differ between platforms.

#include "ForeignText.h"
#include "RunningDrag.h"
#include "UnicodeText.h"
