#pragma once

#include "EditSheet.h"
#include "Screen.h"

#include <QObject>
#include <QSet>
#include <QUuid>

#include <functional>
#include <optional>

namespace ormiva {

/// A question that is waiting for the user. Two with the same texts are different requests.
struct ConfirmRequest {
    QUuid id = QUuid::createUuid();
    QString title;
    QString message;
    QString button;
    std::function<void()> action;
};

/// What the window is doing: the one place where screens read and write where they are. It lives for the run
/// and is not saved. Absent optional texts are empty strings for QML.
class AppModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString screen READ screenForQml WRITE setScreenForQml NOTIFY screenChanged)
    Q_PROPERTY(QString sheetIdentity READ sheetIdentity NOTIFY sheetChanged)
    Q_PROPERTY(QVariant sheetRecord READ sheetRecord NOTIFY sheetChanged)
    Q_PROPERTY(bool confirming READ confirming NOTIFY confirmChanged)
    Q_PROPERTY(QString confirmTitle READ confirmTitle NOTIFY confirmChanged)
    Q_PROPERTY(QString confirmMessage READ confirmMessage NOTIFY confirmChanged)
    Q_PROPERTY(QString confirmButton READ confirmButton NOTIFY confirmChanged)
    Q_PROPERTY(QString message READ messageForQml NOTIFY messageChanged)
    Q_PROPERTY(QString speciesID READ speciesIDForQml WRITE setSpeciesIDForQml NOTIFY speciesIDChanged)
    Q_PROPERTY(QString checkerSpeciesID READ checkerSpeciesIDForQml NOTIFY checkerChanged)

public:
    /// The model of the run.
    static AppModel& shared();

    explicit AppModel(QObject* parent = nullptr);

    Screen screen() const { return m_screen; }
    void setScreen(Screen screen);
    const std::optional<EditSheet>& sheet() const { return m_sheet; }
    const std::optional<ConfirmRequest>& confirm() const { return m_confirm; }
    void setConfirm(std::optional<ConfirmRequest> request);
    const std::optional<QString>& message() const { return m_message; }
    /// There is no queue: a new message replaces a waiting one.
    void setMessage(std::optional<QString> message);
    const std::optional<QString>& speciesID() const { return m_speciesID; }
    void setSpeciesID(std::optional<QString> id);
    const std::optional<qint64>& petID() const { return m_petID; }
    void setPetID(std::optional<qint64> id);
    const std::optional<QString>& checkerSpeciesID() const { return m_checkerSpeciesID; }
    const QSet<QString>& checkerSymptoms() const { return m_checkerSymptoms; }
    void setChecker(std::optional<QString> speciesID, QSet<QString> symptoms);

    /// Runs the body of a direct action. Whatever it throws becomes the waiting message. True when it
    /// finished.
    bool act(const std::function<void()>& body);
    /// Asks before something is deleted: "Delete {title}?", with `detail` ahead of the standing warning.
    void askDelete(const QString& title, const QString& detail, std::function<void()> action);
    void edit(EditSheet sheet);

    /// Opens the care sheet of a species.
    Q_INVOKABLE void openSpecies(const QString& id);
    /// Opens the symptom checker with this animal chosen and nothing ticked.
    Q_INVOKABLE void checkSymptoms(const QString& speciesID);
    /// Opens the editor for a new pet, of this species unless it is empty.
    Q_INVOKABLE void editNewPet(const QString& speciesID = {});
    Q_INVOKABLE void closeSheet();
    Q_INVOKABLE void dismissMessage();
    /// Clears the confirmation, and then runs its action when it was confirmed.
    Q_INVOKABLE void answerConfirm(bool confirmed);

Q_SIGNALS:
    void screenChanged();
    void sheetChanged();
    void confirmChanged();
    void messageChanged();
    void speciesIDChanged();
    void petIDChanged();
    void checkerChanged();

private:
    QString screenForQml() const { return info(m_screen).id; }
    void setScreenForQml(const QString& id);
    QString sheetIdentity() const { return m_sheet ? identity(*m_sheet) : QString(); }
    QVariant sheetRecord() const { return m_sheet ? recordOf(*m_sheet) : QVariant(); }
    bool confirming() const { return m_confirm.has_value(); }
    QString confirmTitle() const { return m_confirm ? m_confirm->title : QString(); }
    QString confirmMessage() const { return m_confirm ? m_confirm->message : QString(); }
    QString confirmButton() const { return m_confirm ? m_confirm->button : QString(); }
    QString messageForQml() const { return m_message.value_or(QString()); }
    QString speciesIDForQml() const { return m_speciesID.value_or(QString()); }
    void setSpeciesIDForQml(const QString& id);
    QString checkerSpeciesIDForQml() const { return m_checkerSpeciesID.value_or(QString()); }

    Screen m_screen = Screen::Home;
    std::optional<EditSheet> m_sheet;
    std::optional<ConfirmRequest> m_confirm;
    std::optional<QString> m_message;
    std::optional<QString> m_speciesID;
    std::optional<qint64> m_petID;
    std::optional<QString> m_checkerSpeciesID;
    QSet<QString> m_checkerSymptoms;
};

} // namespace ormiva
