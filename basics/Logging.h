#pragma once

#include <QLoggingCategory>

// Diagnostics, without any behaviour. The first is on; the others write a line for each record,
// pointer event or painting and are switched on with QT_LOGGING_RULES="tonquill.*=true".
Q_DECLARE_LOGGING_CATEGORY(lcTonquill)
Q_DECLARE_LOGGING_CATEGORY(lcRecords)
Q_DECLARE_LOGGING_CATEGORY(lcPointer)
Q_DECLARE_LOGGING_CATEGORY(lcPaint)
