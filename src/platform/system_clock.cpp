#include "platform/system_clock.h"

#include <QDate>
#include <QLocale>
#include <clocale>

namespace korvet {

std::string SystemClock::ShortDate() const {
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

char SystemDecimalMark() {
    return QLocale::system().decimalPoint() == QStringLiteral(",") ? ',' : '.';
}

void HoldNumericLocale() {
    std::setlocale(LC_NUMERIC, "C");
}

}  // namespace korvet
