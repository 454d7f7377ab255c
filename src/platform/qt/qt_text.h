#pragma once
// Text between the models (UTF-8 std::string) and the widgets (QString).
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace qh {

inline QString qs(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
inline std::string str(const QString& text) { return text.toStdString(); }

// Multi-line boxes hold their lines as the planner's files do, ended by CR LF; the widget
// knows only LF.
inline QString forDisplay(const std::string& text) { return qs(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); }
inline std::string fromDisplay(const QString& text) {
    QString copy = text;
    return str(copy.replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
}

inline QStringList qsList(const std::vector<std::string>& items) {
    QStringList list;
    list.reserve(qsizetype(items.size()));
    for (const std::string& item : items) list.append(qs(item));
    return list;
}

}  // namespace qh
