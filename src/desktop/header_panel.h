#pragma once

#include <QtWidgets/QFrame>

class QLabel;

namespace zelvor {

class ApplicationShell;
class ElidedLabel;
class QuickOpen;

// The band above menu and tabs: whose business this is, in which currency, and the field that finds anything.
class HeaderPanel : public QFrame {
    Q_OBJECT

public:
    explicit HeaderPanel(ApplicationShell& shell, QWidget* parent = nullptr);

    QuickOpen* quickOpen() const { return m_quickOpen; }
    // Reads the settings of the project anew.
    void showSettings();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showLogo(const QString& path);

    ApplicationShell& m_shell;
    QLabel* m_logo;
    QString m_logoPath; // as shown
    ElidedLabel* m_business;
    QLabel* m_currency;
    QuickOpen* m_quickOpen;
};

} // namespace zelvor
