#pragma once

#include <ombrin/OmTextEdit.h>

#include <QtCore/QVector>
#include <QtGui/QImage>

namespace messenger {

/// The field in which a message is written. Pictures that are pasted or dropped into it are not for
/// the text: it hands them on.
class MessageInput : public ombrin::OmTextEdit
{
    Q_OBJECT

public:
    explicit MessageInput(QWidget *parent = nullptr);
    ~MessageInput() override;

Q_SIGNALS:
    /// Null ones stand for files that are no pictures.
    void picturesGiven(const QVector<QImage> &pictures);

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace messenger
