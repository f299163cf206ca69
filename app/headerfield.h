#pragma once

#include "widgets/checkedlineedit.h"

class Session;

/// The field whose text gives the start bytes of both links' frames, in both directions.
class HeaderField : public CheckedLineEdit
{
    Q_OBJECT

public:
    explicit HeaderField(QWidget *parent = nullptr);

    /// Hands the text on to the session, now and whenever it changes. The session must outlive the
    /// field, or go with it.
    void feed(Session &session);
};
