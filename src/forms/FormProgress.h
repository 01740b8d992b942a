#pragma once

#include "base/Progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace ls {

/// The text and options of a progress box.
struct ProgressBox
{
    QString label;                ///< "Reading Guide.IDA"
    bool canCancel = true;        ///< false for work that must run to its end
    int delayMilliseconds = 1000; ///< shorter work shows no box
};

/// Shows a progress box if the work lasts longer than the delay, which starts at construction. The destructor
/// closes the box.
///
/// The box is modal, and its events run inside `Step`. Nothing else of the program may be started from there.
class FormProgress : public QObject, public Progress
{
    Q_OBJECT

public:
    FormProgress(QWidget* window, ProgressBox box);
    ~FormProgress() override;

    bool Step(std::int64_t done, std::int64_t total) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Open();
    [[nodiscard]] bool Cancelled() const;

    QPointer<QWidget> m_window;
    ProgressBox m_box;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceMoved;
    std::unique_ptr<QProgressDialog> m_dialog;
};

} // namespace ls
