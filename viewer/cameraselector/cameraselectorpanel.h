#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace Viewer::CameraSelector {

class CCameraSelectorView;

/// The tree of cameras below a field for a text that the cameras to show have in any column.
class CCameraSelectorPanel : public QWidget
{
    Q_OBJECT

public:
    /// Takes over @p view.
    explicit CCameraSelectorPanel(CCameraSelectorView *view, QWidget *parent = nullptr);
    ~CCameraSelectorPanel() override;

    /// Lets the user type another text.
    void beginFilter();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showCount();

    CCameraSelectorView *const m_view;
    QLineEdit *const m_filterEdit;
    QLabel *const m_countLabel;
};

} // namespace Viewer::CameraSelector
