// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeParts.h"

namespace velmora
{

using namespace FakeParts;

namespace
{

FakeComObject *makeRoot(FakeDisc &fake)
{
    auto *root =
        new FakeComObject(fake, QStringLiteral("IFsiDirectoryItem"), __uuidof(IFsiDirectoryItem));
    root->on(24, [](FakeComObject *self, BSTR name, IStream *stream) {
        self->keep(stream);
        return self->note(QStringLiteral("AddFile %1, %2").arg(text(name), nameOf(stream)));
    });
    return root;
}

FakeComObject *makeResult(FakeDisc &fake)
{
    auto *result = new FakeComObject(fake, QStringLiteral("IFileSystemImageResult"),
                                     __uuidof(IFileSystemImageResult));
    result->on(7, [](FakeComObject *self, IStream **value) {
        const HRESULT answered = self->note(QStringLiteral("get_ImageStream"));
        if (SUCCEEDED(answered))
            *value = (new FakeComObject(disc(self), QStringLiteral("image"), __uuidof(IStream)))
                         ->as<IStream>();
        return answered;
    });
    return result;
}

/// Makes the objects that an image hands out.
template <FakeComObject *(*Make)(FakeDisc &)>
HRESULT handOut(FakeComObject *self, const char *call, void **value)
{
    const HRESULT result = self->note(QLatin1String(call));
    if (SUCCEEDED(result))
        *value = Make(disc(self));
    return result;
}

void addImporting(FakeComObject *image)
{
    image->on(44, [](FakeComObject *self, LONG *fileSystem) {
        return answer(self, "ImportFileSystem", fileSystem, LONG(4));
    });
    image->on(56, [](FakeComObject *self, SAFEARRAY *sessions) {
        VARIANT session;
        VariantInit(&session);
        LONG index = 0;
        SafeArrayGetElement(sessions, &index, &session);
        const QString name = nameOf(session.vt == VT_DISPATCH ? session.pdispVal : nullptr);
        VariantClear(&session);
        return self->note(QStringLiteral("put_MultisessionInterfaces ") + name);
    });
}

} // namespace

FakeComObject *FakeParts::makeImage(FakeDisc &fake)
{
    auto *image =
        new FakeComObject(fake, QStringLiteral("MsftFileSystemImage"), __uuidof(IFileSystemImage));
    addImporting(image);
    image->on(7, [](FakeComObject *self, void **value) {
        return handOut<makeRoot>(self, "get_Root", value);
    });
    image->on(10, [](FakeComObject *self, LONG *value) {
        return answer(self, "get_FreeMediaBlocks", value, disc(self).freeBlocks);
    });
    image->on(14, [](FakeComObject *self, BSTR *value) {
        return answerText(self, QStringLiteral("get_VolumeName"), value,
                          QStringLiteral("Holidays"));
    });
    image->on(15, [](FakeComObject *self, BSTR name) {
        return self->note(QStringLiteral("put_VolumeName ") + text(name));
    });
    image->on(34, [](FakeComObject *self, IUnknown *recorder) {
        return self->note(QStringLiteral("ChooseImageDefaults ") + nameOf(recorder));
    });
    image->on(39, [](FakeComObject *self, void **value) {
        return handOut<makeResult>(self, "CreateResultImage", value);
    });
    image->on(40, [](FakeComObject *self, BSTR path, LONG *type) {
        *type = disc(self).files.contains(text(path).mid(1)) ? 2 : 0;
        return self->note(QStringLiteral("Exists ") + text(path));
    });
    return image;
}

} // namespace velmora
