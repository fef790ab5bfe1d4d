// What the library needs of the platform, as small interfaces: regular
// expressions, fonts, URL loading, images, clocks, time zones, the user's
// locale, translations. Each has one real back end, chosen by default, and can
// be replaced by the application.
#pragma once

#include "QZCore/platform/clock.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/platform/images.h"
#include "QZCore/platform/regex.h"
#include "QZCore/platform/string_table.h"
#include "QZCore/platform/time_zone.h"
#include "QZCore/platform/url_loading.h"
#include "QZCore/platform/user_locales.h"
