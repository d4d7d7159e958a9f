#pragma once

// Everything of the time view.

#include "KSTimeView/TimeView.h"
#include "KSTimeView/TimeViewEvents.h"
#include "KSTimeView/TimeViewHintWindow.h"
#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "KSTimeView/model/TimeViewTypes.h"
#include "KSTimeView/model/TimeviewDay.h"
