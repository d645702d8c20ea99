#pragma once

namespace ormiva {

class AppModel;
class FilePanels;
class OMStore;

/// What the buttons and the menu do about backups. The user is asked and told through `panels` and `model`.
namespace BackupCommands {

/// Asks where to save the backup, writes it and shows it in the file manager. Nothing is said about a
/// success.
void backUpNow(AppModel& model, OMStore& store, FilePanels& panels);

/// Asks for a backup, checks it, and asks whether to replace the records by it. `store` must live as long as
/// the question waits.
void restore(AppModel& model, OMStore& store, FilePanels& panels);

} // namespace BackupCommands
} // namespace ormiva
