#pragma once
// The one place where numbers are read and written: every module reads and
// formats numbers through these functions only.
#include "points/numbers/date.h"
#include "points/numbers/format.h"
#include "points/numbers/integer.h"
#include "points/numbers/read.h"
#include "points/numbers/system.h"
