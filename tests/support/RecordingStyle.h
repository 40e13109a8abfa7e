#pragma once

#include <QProxyStyle>
#include <QStringList>

namespace WyTest {

/// A style that notes what it polishes and unpolishes: "polish QLabel dialog_title active=false". A part that
/// the widget does not have (object name, dynamic property "active") is left out.
class RecordingStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;

    QStringList calls;

private:
    void note(const QString& call, const QWidget* widget);
};

} // namespace WyTest
