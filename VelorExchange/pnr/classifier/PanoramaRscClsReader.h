// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// The reader of RSC classifiers, which works through Panorama's closed library.

#include "VelorExchange/foundation/Export.h"

#include <QString>

#include <map>
#include <utility>
#include <vector>

#if defined(_WIN32)
// As the system's headers declare them, so that a host may include those before or after.
struct HDC__;
struct HBITMAP__;
using HDC = HDC__*;
using HBITMAP = HBITMAP__*;
#endif

namespace VelorExchange::pnr {

#if defined(_WIN32)
using HDC = ::HDC;
using HBITMAP = ::HBITMAP;
#else
/// A device to draw on. Passes through to the closed library unchanged.
using HDC = void*;
/// A bitmap that the closed library owns. Passes through unchanged.
using HBITMAP = void*;
#endif

/// Lists what a Panorama RSC classifier holds and draws samples of its objects.
///
/// It reads nothing itself: all work goes to Panorama's closed library, a file whose path the host
/// gives to `GetInstance`. There is one instance in a process, it has no lock, and the host uses it
/// from one thread.
///
/// Texts go to the library and come back in the process's local 8-bit codec. Each operation that
/// calls the library gives the caller its own floating-point traps back, with no exception
/// pending; the library finds those that it left behind.
///
/// No operation throws on the library's account or reports more than its result: false, null or
/// nothing added. That is also what every operation does while no library is loaded. Containers
/// handed in are added to, not emptied; of two entries with one key the last stands.
class VELOREXCHANGE_EXPORT CPanoramaRscClsReader
{
public:
    /// The classifier's kind of an object, as its integer. Any integer is taken.
    enum EObjectType : int {};

    /// The classifier's kind of a semantic, as its integer. Any integer is taken. As a filter of
    /// `GetSemantics`, 2 stands for kind 1 with a linked list of values.
    enum ESemanticsType : int {};

    /// A layer of the classifier.
    struct CLayer
    {
        QString name; ///< Its name.
    };

    /// An object of the classifier.
    struct CObject
    {
        QString name; ///< Its name.
        QString layerName; ///< The name of its layer.
        qint32 code = 0; ///< Its code in the classifier.
        qint32 number = 0; ///< From 1: in its layer (`GetObjectsInLayer`) or in the classifier.
        EObjectType type{}; ///< Its kind.
    };

    /// A semantic of the classifier.
    struct CSemanticObject
    {
        QString name; ///< Its name.
        qint32 code = 0; ///< Its code in the classifier.
    };

    /// The instance, with the library of `libraryPath` loaded; null if that file does not exist, is
    /// no library or lacks one of the 22 functions. The library loaded before is freed either way,
    /// and what it has open is not closed first. The path loaded already, or an empty one, only asks
    /// for the current state: null if no library is loaded. The instance is never the host's to delete.
    static CPanoramaRscClsReader* GetInstance(const QString& libraryPath);

    /// Frees the library. What it has open is not closed: call `Close` and `CloseToDrawPriview` first.
    static void KillInstance();

    /// Closes the classifier that is open and opens `file`. False if the library can't.
    bool Open(const QString& file);

    /// Closes the open classifier; without one, nothing happens.
    void Close();

    /// True if a classifier is open.
    bool isOpen() const;

    /// Opens a temporary map over the classifier `file`, for `DrawPreview`. False for an empty name
    /// and if the library can't. A map opened before is not closed.
    bool OpenToDrawPreview(const QString& file);

    /// Closes the temporary map. Its handle stays in `hMap`: open another before drawing again.
    void CloseToDrawPriview();

    /// A bitmap of `width` by `height` pixels, null if the library can't. It is the library's and
    /// goes back with `ClosePnrBitMap`.
    HBITMAP CreatePnrBitmap(int width, int height);

    /// Frees a bitmap of `CreatePnrBitmap`.
    void ClosePnrBitMap(HBITMAP bitmap);

    /// Draws a sample of the object with the number `object` on `dc`, `width` by `height` pixels
    /// from its corner 0, 0. False if the library can't, and for the number -1, which never gets
    /// to the library. Needs `OpenToDrawPreview`.
    bool DrawPreview(HDC dc, int object, int width, int height);

    /// Adds all layers in the classifier's order: the place from 0 is the layer's number.
    void GetLayers(std::vector<CLayer>& layers) const;

    /// Adds the objects of the kind `type` in the layer with the number `layer`, from 0.
    void GetObjectsInLayer(EObjectType type, int layer, std::vector<CObject>& objects) const;

    /// Adds all objects of the classifier by their code.
    void GetAllObjects(std::map<unsigned, CObject>& objects);

    /// Adds all objects of the classifier by their key.
    void GetAllObjects(std::map<QString, CObject>& objects);

    /// Adds name and kind of the semantics of the kinds 0, 1 and 16 to 19 by their code. The
    /// classifier's first semantic is passed over.
    void GetSemantics(std::map<unsigned, std::pair<QString, ESemanticsType>>& semantics);

    /// Adds the semantics that `type` selects: 0, 1 and 17 those of that kind, 2 those of kind 1
    /// with a linked list of values, any other none. The classifier's last semantic is never
    /// reached, nor its first with 0.
    void GetSemantics(std::vector<CSemanticObject>& semantics, ESemanticsType type) const;

    /// The name of `value` in the value list of the semantic `code`. Empty if the list has no such
    /// value or no classifier is open.
    QString GetTCodeSemanticValue(unsigned short code, int value);

    /// The one instance. Hosts reach it by `GetInstance`.
    static CPanoramaRscClsReader m_instance;

    // The state, for looking at; only the operations change it.
    bool opened = false; ///< Whether `hRsc` is an open classifier.
    void* hRsc = nullptr; ///< The library's handle of the open classifier.
    void* hMap = nullptr; ///< The library's handle of the temporary map.
    void* hLibrary = nullptr; ///< The loaded library.
    QString libraryPath; ///< The path that it was loaded by; empty without one.

private:
    friend struct CRscLibrary;

    bool LoadFunctionsAdress();
    void FillFunctionsZero();
    void FreeLoadedLibrary();

    CObject ObjectByNumber(int number) const;
    QString LayerName(int layer) const;

    // The library's functions. The last argument of those that give a name is always -1.
    void* (*mapOpenRsc)(const char* file) = nullptr;
    void (*mapCloseRsc)(void* rsc) = nullptr;
    void* (*mapCreateTempSite)(const char* file) = nullptr;
    void (*mapCloseMap)(void* map) = nullptr;
    HBITMAP (*mapCreateBitmapEx)(int width, int height) = nullptr;
    int (*mapPaintExampleObject)(void* map, HDC dc, void* rectangle, int object) = nullptr;
    void (*mapCloseBitmap)(HBITMAP bitmap) = nullptr;
    int (*mapGetRscSegmentCount)(void* rsc) = nullptr;
    const char* (*mapGetRscSegmentName)(void* rsc, int layer, int) = nullptr;
    int (*mapGetRscSemanticClassificatorCount)(void* rsc, int code) = nullptr;
    int (*mapGetRscSemanticClassificatorCode)(void* rsc, int code, int index) = nullptr;
    const char* (*mapGetRscSemanticClassificatorName)(void* rsc, int code, int index,
                                                      int) = nullptr;
    int (*mapGetRscObjectCountInLayer)(void* rsc, int layer) = nullptr;
    int (*mapGetRscObjectLocalInLayer)(void* rsc, int layer, int number) = nullptr;
    const char* (*mapGetRscObjectNameInLayer)(void* rsc, int layer, int number, int) = nullptr;
    int (*mapGetRscObjectExcodeInLayer)(void* rsc, int layer, int number) = nullptr;
    int (*mapGetRscObjectCount)(void* rsc) = nullptr;
    int (*mapGetRscObject)(void* rsc, int number, void* record) = nullptr;
    int (*mapGetRscSemanticCount)(void* rsc) = nullptr;
    int (*mapGetRscSemanticCodeByNumber)(void* rsc, int number) = nullptr;
    int (*mapGetRscSemanticExByCode)(void* rsc, void* record, int code) = nullptr;
    const char* (*mapGetRscObjectKey)(void* rsc, int number, int) = nullptr;
};

} // namespace VelorExchange::pnr
