// Dates: the calendar, work time and placeholder dates.
#pragma once

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/date_components.h"
#include "QZCore/dates/dates.h"
#include "QZCore/dates/placeholder_dates.h"
#include "QZCore/dates/work_time.h"
