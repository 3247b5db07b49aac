#pragma once

#include "desktop/guarded.h"
#include "support/dragged_files.h"

#include <QWidget>

/// Lets the window take files that are dragged over it. While they hover a frame over the whole window says
/// what a drop would do, or why it is refused; it is a label named "drop_area" and gone when they leave. The
/// drop is answered when its sender has been let go. A window that waits behind a dialog takes nothing.
void take_drops(QWidget & window, const drop_target & target, const error_report & report);

class QMimeData;

/// The files in what is dragged; both lists empty when there are none.
dragged_files files_in(const QMimeData & dragged);
