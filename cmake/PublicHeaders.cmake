# Every installed header, one by one.
set(QZCORE_PUBLIC_HEADERS
  color.h
  color/color.h
  color/named_colors.h
  color/stored_colors.h
  export.h
  foundation.h
  foundation/data.h
  foundation/dictionary.h
  foundation/files.h
  foundation/log.h
  foundation/object.h
  foundation/preferences.h
  foundation/property_list.h
  foundation/range.h
  foundation/text.h
  foundation/value.h
  platform.h
  platform/fonts.h
  platform/images.h
  platform/regex.h
  platform/url_loading.h)
list(TRANSFORM QZCORE_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/include/QZCore/)
