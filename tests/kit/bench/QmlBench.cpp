#include "QmlBench.h"

#include "AppModel.h"
#include "CareLibrary.h"
#include "FilePanels.h"
#include "OMHelp.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "OMStore.h"
#include "OMThemes.h"
#include "Opener.h"
#include "VLKAbout.h"
#include "VLKKit.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <QAccessible>
#include <QClipboard>
#include <QFont>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQuickTextDocument>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <functional>

namespace ormiva::testing {

namespace {

bool isOfType(const QObject& object, const QString& type) {
    for (const QMetaObject* meta = object.metaObject(); meta; meta = meta->superClass()) {
        const QString name = QString::fromLatin1(meta->className());
        if (name == type || name.startsWith(type + QStringLiteral("_QML")) ||
            name == QStringLiteral("ormiva::") + type)
            return true;
    }
    return false;
}

void visit(QQuickItem& item, const std::function<void(QQuickItem&)>& seen) {
    if (!item.isVisible())
        return;
    seen(item);
    for (QQuickItem* child : item.childItems())
        visit(*child, seen);
}

/// Panels whose user thinks better of it.
class CancelledPanels final : public FilePanels {
public:
    QStringList asked;

    std::optional<QString> save(const QString& name, const QList<FileType>&) override {
        asked.append(QStringLiteral("save ") + name);
        return std::nullopt;
    }
    std::optional<QString> open(const QList<FileType>&, const QString& message) override {
        asked.append(QStringLiteral("open ") + message);
        return std::nullopt;
    }
    void reveal(const QString&) override {}
};

CancelledPanels& panels() {
    return static_cast<CancelledPanels&>(*FilePanels::shared());
}

} // namespace

QmlBench::QmlBench() {
    Opener::open = [this](const QUrl& url) { m_opened.append(url.toString(QUrl::FullyEncoded)); };
}

void QmlBench::reset() {
    m_opened.clear();
    m_deleted = 0;
    panels().asked.clear();
    UserCalendar::setSurroundings({});
    openStore();
    OMPrefs::remove(VLKThemes::key);
    OMPrefs::remove(VLZoom::key);
    AppModel& model = AppModel::shared();
    model.closeSheet();
    model.setConfirm(std::nullopt);
    model.setMessage(std::nullopt);
    model.setSpeciesID(std::nullopt);
    model.setChecker(std::nullopt, {});
    model.setScreen(Screen::Library);
}

void QmlBench::storeTheme(const QString& id) {
    VLKThemes::setCurrentID(id);
}
QString QmlBench::storedTheme() const {
    return VLKThemes::currentID();
}
void QmlBench::storeZoom(double zoom) {
    VLZoom::setValue(zoom);
}
void QmlBench::setMessage(const QString& text) {
    AppModel::shared().setMessage(text);
}

void QmlBench::askDelete(const QString& title) {
    AppModel::shared().askDelete(title, {}, [this] { ++m_deleted; });
}

QString QmlBench::editedSpecies() const {
    const auto& sheet = AppModel::shared().sheet();
    return sheet ? std::get<Pet>(*sheet).speciesID : QStringLiteral("-");
}

void QmlBench::tickSymptom(const QString& id) {
    AppModel::shared().setChecker(AppModel::shared().checkerSpeciesID(), {id});
}

int QmlBench::tickedSymptoms() const {
    return static_cast<int>(AppModel::shared().checkerSymptoms().size());
}

QString QmlBench::sheet() const {
    const auto& sheet = AppModel::shared().sheet();
    return sheet ? identity(*sheet) : QString();
}

qint64 QmlBench::sheetPet() const {
    const QVariant record = AppModel::shared().sheet() ? recordOf(*AppModel::shared().sheet()) : QVariant();
    const QMetaObject* type = record.metaType().metaObject();
    const int index = type ? type->indexOfProperty("petID") : -1;
    return index < 0 ? 0 : type->property(index).readOnGadget(record.constData()).toLongLong();
}

QStringList QmlBench::asked() const {
    return panels().asked;
}

QWindow* QmlBench::windowTitled(const QString& title) const {
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->title() == title && window->isVisible())
            return window;
    return nullptr;
}

QString QmlBench::activeTitle() const {
    return QGuiApplication::focusWindow() ? QGuiApplication::focusWindow()->title() : QString();
}

QString QmlBench::preference(const QString& key) const {
    return OMPrefs::value(key).toString();
}

void QmlBench::fixCalendar(const QString& today, const QString& locale) const {
    const QString zone = QStringLiteral("UTC");
    UserCalendar::setSurroundings({{}, zone, locale});
    const Instant noon = day(today).date();
    UserCalendar::setSurroundings({[noon] { return noon; }, zone, locale});
}

OMDay QmlBench::day(const QString& iso) const {
    return OMDay::fromIso(iso).value();
}

void QmlBench::openStore() {
    const QString path = m_records.filePath(QStringLiteral("%1.sqlite").arg(++m_stores));
    OMStore::setShared(std::make_unique<OMStore>(path));
}

qint64 QmlBench::addPet(const QString& name, const QString& speciesID) const {
    Pet pet;
    pet.name = name;
    pet.speciesID = QStringLiteral("test-gecko");
    OMStore::shared()->save(pet);
    // A new pet's species is one of the library, but a later library may have lost it.
    OMStore::shared()->db().run(QStringLiteral("UPDATE pet SET species_id = ? WHERE id = ?"),
                                {speciesID, pet.id});
    OMStore::shared()->changed();
    return pet.id;
}

void QmlBench::removePet(qint64 id) const {
    OMStore::shared()->remove<Pet>(id);
}

QList<QObject*> QmlBench::all(QQuickItem* root, const QString& type) const {
    QList<QObject*> found;
    visit(*root, [&](QQuickItem& item) {
        if (isOfType(item, type))
            found.append(&item);
    });
    return found;
}

QStringList QmlBench::texts(QQuickItem* root, const QString& type) const {
    QStringList texts;
    for (const QObject* item : all(root, type))
        texts.append(item->property("text").toString());
    return texts;
}

QQuickItem* QmlBench::named(QQuickItem* root, const QString& type, const QString& text) const {
    for (QObject* item : all(root, type))
        if (item->property("text").toString() == text)
            return qobject_cast<QQuickItem*>(item);
    return nullptr;
}

QStringList QmlBench::lines(QQuickItem* textEdit) const {
    const auto* document = textEdit->property("textDocument").value<QQuickTextDocument*>();
    QStringList lines;
    for (QTextBlock block = document->textDocument()->begin(); block.isValid(); block = block.next())
        lines.append((block.textList() ? QStringLiteral("• ") : QString()) + block.text());
    return lines;
}

QString QmlBench::accessibleName(QQuickItem* item) const {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(item);
    return face ? face->text(QAccessible::Name) : QString();
}

int QmlBench::accessibleRole(QQuickItem* item) const {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(item);
    return face ? face->role() : QAccessible::NoRole;
}

QString QmlBench::clipboard() const {
    return QGuiApplication::clipboard()->text();
}

void QmlBench::press(QQuickWindow* window, const QString& keys) const {
    const QKeyCombination pressed = QKeySequence(keys)[0];
    QTest::keyClick(window, pressed.key(), pressed.keyboardModifiers());
}

void QmlBench::pressInActive(const QString& keys) const {
    press(qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow()), keys);
}

QString QmlBench::spoken() const {
    const auto* window = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow());
    QAccessibleInterface* face = window && window->activeFocusItem()
                                     ? QAccessible::queryAccessibleInterface(window->activeFocusItem())
                                     : nullptr;
    if (!face)
        return QStringLiteral("nothing");
    const QString role = QString::fromUtf8(QMetaEnum::fromType<QAccessible::Role>().valueToKey(face->role()));
    return role + QStringLiteral(": ") + face->text(QAccessible::Name);
}

QQuickItem* QmlBench::focusItem(QQuickItem* item) const {
    return item->window() ? item->window()->activeFocusItem() : nullptr;
}

QRectF QmlBench::place(QQuickItem* item) const {
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

QmlSetup::QmlSetup() {
    for (const char* variable :
         {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, m_home.path().toUtf8());
    qputenv("OM_DATA_DIR", ORMIVA_TEST_CONTENT);
}

void QmlSetup::applicationAvailable() {
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    QAccessible::setActive(true);
    OMPrefs::useFile(m_home.filePath(QStringLiteral("prefs.ini")));
    OMStore::setShared(std::make_unique<OMStore>(m_home.filePath(QStringLiteral("pets.sqlite"))));
    FilePanels::setShared(std::make_unique<CancelledPanels>());
    VLKThemes::setDefaultID(OMThemes::canopyID);
    VLKAbout::extraLines = {QStringLiteral("One."), QStringLiteral("Two."), QStringLiteral("Three.")};
    VLKKit::install(OMInfo::appName, OMHelp::topics(CareLibrary::shared()), OMThemes::extras());
}

void QmlSetup::qmlEngineAvailable(QQmlEngine* engine) {
    static QmlBench bench;
    QQmlEngine::setObjectOwnership(&bench, QQmlEngine::CppOwnership);
    qmlRegisterSingletonInstance("Ormiva.Bench", 1, 0, "Bench", &bench);
    engine->setOutputWarningsToStandardError(true);
    // A page that complains is a page with a fault.
    QObject::connect(engine, &QQmlEngine::warnings, engine, [](const QList<QQmlError>& errors) {
        QTest::qFail(qPrintable(errors.first().toString()), __FILE__, __LINE__);
    });
}

} // namespace ormiva::testing
