#include "Logging.h"

Q_LOGGING_CATEGORY(lcTonquill, "tonquill")
Q_LOGGING_CATEGORY(lcRecords, "tonquill.records", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPointer, "tonquill.pointer", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPaint, "tonquill.paint", QtInfoMsg)
