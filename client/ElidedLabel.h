#pragma once

#include <QLabel>

/// A label of one line that ends its text with dots when there is no room, and then shows all of it as its
/// tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    ~ElidedLabel() override;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool IsCut() const;
};
