#pragma once

#include <QLoggingCategory>

// Log categories. The first is on by default; the others log every record, pointer event or paint
// and are enabled with QT_LOGGING_RULES="tonquill.*=true".
Q_DECLARE_LOGGING_CATEGORY(lcTonquill)
Q_DECLARE_LOGGING_CATEGORY(lcRecords)
Q_DECLARE_LOGGING_CATEGORY(lcPointer)
Q_DECLARE_LOGGING_CATEGORY(lcPaint)
