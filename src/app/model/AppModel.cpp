#include "AppModel.h"

#include "Failure.h"

#include <exception>

namespace ormiva {

AppModel& AppModel::shared() {
    static AppModel model;
    return model;
}

AppModel::AppModel(QObject* parent)
    : QObject(parent) {}

void AppModel::setScreen(Screen screen) {
    if (m_screen == screen)
        return;
    m_screen = screen;
    Q_EMIT screenChanged();
}

void AppModel::setScreenForQml(const QString& id) {
    if (const auto known = ormiva::screen(id))
        setScreen(*known);
}

void AppModel::setConfirm(std::optional<ConfirmRequest> request) {
    m_confirm = std::move(request);
    Q_EMIT confirmChanged();
}

void AppModel::setMessage(std::optional<QString> message) {
    m_message = std::move(message);
    Q_EMIT messageChanged();
}

void AppModel::setSpeciesID(std::optional<QString> id) {
    if (m_speciesID == id)
        return;
    m_speciesID = std::move(id);
    Q_EMIT speciesIDChanged();
}

void AppModel::setSpeciesIDForQml(const QString& id) {
    setSpeciesID(id.isEmpty() ? std::nullopt : std::optional(id));
}

void AppModel::setPetID(std::optional<qint64> id) {
    if (m_petID == id)
        return;
    m_petID = id;
    Q_EMIT petIDChanged();
}

void AppModel::setChecker(std::optional<QString> speciesID, QSet<QString> symptoms) {
    m_checkerSpeciesID = std::move(speciesID);
    m_checkerSymptoms = std::move(symptoms);
    Q_EMIT checkerChanged();
}

bool AppModel::act(const std::function<void()>& body) {
    try {
        body();
        return true;
    } catch (const Failure& failure) {
        setMessage(failure.description());
    } catch (const std::exception& failure) {
        setMessage(QString::fromLocal8Bit(failure.what()));
    } catch (...) {
        setMessage(QStringLiteral("Something unexpected went wrong."));
    }
    return false;
}

void AppModel::askDelete(const QString& title, const QString& detail, std::function<void()> action) {
    const QString warning = QStringLiteral("This can't be undone (a backup made earlier can bring it back).");
    ConfirmRequest request;
    request.title = QStringLiteral("Delete %1?").arg(title);
    request.message = detail.isEmpty() ? warning : detail + QStringLiteral("\n\n") + warning;
    request.button = QStringLiteral("Delete");
    request.action = std::move(action);
    setConfirm(std::move(request));
}

void AppModel::edit(EditSheet sheet) {
    m_sheet = std::move(sheet);
    Q_EMIT sheetChanged();
}

void AppModel::openSpecies(const QString& id) {
    setSpeciesID(id);
    setScreen(Screen::Library);
}

void AppModel::checkSymptoms(const QString& speciesID) {
    setChecker(speciesID, {});
    setScreen(Screen::Symptoms);
}

void AppModel::editNewPet(const QString& speciesID) {
    Pet pet;
    pet.speciesID = speciesID;
    edit(pet);
}

void AppModel::closeSheet() {
    m_sheet.reset();
    Q_EMIT sheetChanged();
}

void AppModel::dismissMessage() {
    setMessage(std::nullopt);
}

void AppModel::answerConfirm(bool confirmed) {
    if (!m_confirm)
        return;
    const auto action = m_confirm->action;
    setConfirm(std::nullopt);
    if (confirmed && action)
        action();
}

} // namespace ormiva
