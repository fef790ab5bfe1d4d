// Dates: the calendar, work time, placeholder dates and formatters.
#pragma once

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/date_components.h"
#include "QZCore/dates/date_formatter.h"
#include "QZCore/dates/dates.h"
#include "QZCore/dates/file_size_formatter.h"
#include "QZCore/dates/formatter.h"
#include "QZCore/dates/iso8601.h"
#include "QZCore/dates/number_formatter.h"
#include "QZCore/dates/placeholder_dates.h"
#include "QZCore/dates/rating_formatter.h"
#include "QZCore/dates/relative_date_formatter.h"
#include "QZCore/dates/work_time.h"
