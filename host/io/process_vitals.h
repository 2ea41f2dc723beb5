// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace corvala::host::io {

/// What moves while another process works: the bytes that it read and wrote to a disk, and the
/// memory that it holds, as the system counts them. Empty when there is no such process. One that
/// spins in a loop leaves it as it was, even when it prints.
QByteArray vitalsOf(qint64 processId);

} // namespace corvala::host::io
