// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>

#include <memory>

class QDialog;

namespace corvala::sdk::ui {

/// Something that the user has open to change maps of the active frame: a pop-up, a menu, an
/// editor, a prompt or a question. Reading goes on in the background and hosts change documents
/// meanwhile, so it remembers what it was opened for: as soon as frame, plot type, data or the
/// numbers of the maps are others, it is closed, and the edit that it was opened for must not be
/// made any more.
class EditSession
{
public:
    /// `close` closes what is open without an edit. It is called once at most, from inside the
    /// notification of the change.
    explicit EditSession(boost::function<void()> close);
    ~EditSession();
    EditSession(const EditSession&) = delete;
    EditSession& operator=(const EditSession&) = delete;

    bool isValid() const; ///< false once it was closed

    /// Closes everything that is open, what was opened last first.
    static void closeAll();

    /// Differs from an earlier answer once frame, plot type, data or the numbers of the maps may be
    /// others than then.
    static unsigned long long documentGeneration();

private:
    struct Open;
    std::shared_ptr<Open> m_open;
};

/// Runs a modal dialog, which must not be on the stack, in an EditSession. Gives its result, or
/// QDialog::Rejected when the session was closed or the dialog destroyed meanwhile.
int execInEditSession(QDialog& dialog);

} // namespace corvala::sdk::ui
