// Answers the dialogs and menus that messages lead to.
#pragma once

#include "stress/monkey/Random.h"

#include <afxwin.h>

namespace monkey {

/// While it lives, every dialog and menu of this thread is answered as soon as it is shown: message boxes
/// with a button they have, file dialogs with a file of the folder or Cancel, all others with Cancel; menus
/// with some item or none. What comes up again and again within one message is left with Cancel.
class DialogAnswerer {
public:
    explicit DialogAnswerer(const CString& folder);
    ~DialogAnswerer();
    DialogAnswerer(const DialogAnswerer&) = delete;
    DialogAnswerer& operator=(const DialogAnswerer&) = delete;

    int Answered() const;

private:
    HHOOK m_activations;
    HHOOK m_menus;
};

/// The source of the answers to what the next message brings up; with `button` (not 0) message boxes that
/// have it get that answer.
void SetDialogAnswers(const Random& random, int button = 0);

}  // namespace monkey
