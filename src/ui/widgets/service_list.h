// How a table on the main window shows the records of an array controller.
#pragma once

class QTableView;

namespace kelvo {

class ArrayController;

/// From now on `table` shows the records and writes its selection back. The table may go first; the
/// records outlive it.
void showServices(ArrayController& records, QTableView& table);

} // namespace kelvo
