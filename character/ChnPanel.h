// SPDX-License-Identifier: MIT
#ifndef CHNPANEL_H
#define CHNPANEL_H

#include "HMIDeviceExport.h"

#include <QStringList>
#include <QWidget>

class ClickLabel;
class QLabel;
class QSignalMapper;
class QToolButton;

/*!
 * The strip that shows the pinyin being composed and five candidates at a time, between two paging
 * buttons.
 *
 * It does not keep the candidates. Each call that shows some takes the whole list, which must not
 * change between setNewPinYin() and the paging calls that follow, and a signal mapper, in which
 * every candidate label is mapped to the text that it shows. Calls without a mapper do nothing.
 * Neither list nor mapper is owned. Connect the clicked() signals of labels and buttons to the
 * mapper's map(), and map the buttons, yourself: the strip does neither.
 */
class HMIDEVICE_EXPORT ChnPanel : public QWidget
{
    Q_OBJECT

public:
    /*!
     * Builds an empty strip, hidden, in the colours of the panel type that is set now. \a parent,
     * which may be null, owns it.
     */
    explicit ChnPanel(QWidget *parent);
    ~ChnPanel() override;

    /*! The candidate label \a index, 0 to 4, owned by the strip; null for any other index. */
    ClickLabel *getClickLabel(short index);

    /*!
     * The paging button: 0 for the previous page, 1 for the next one; null for any other index.
     * Owned by the strip.
     */
    QToolButton *getToolButton(short index);

    /*! The label of the pinyin, owned by the strip; its text is the caller's to read and write. */
    QLabel *getPinyinLabel();

    /*!
     * Shows the first page of \a list. Labels beyond the end of a list shorter than five keep what
     * they show: call clearPinYin() first where that matters. An empty list changes nothing.
     */
    void setNewPinYin(const QStringList &list, QSignalMapper *mapper);

    /*!
     * Empties the candidate labels, maps them to "" and forgets the pages. Empties the pinyin
     * label as well when \a clearPinyinToo is not 0.
     */
    void clearPinYin(QSignalMapper *mapper, short clearPinyinToo);

    /*! Shows the next page of \a list; does nothing on the last one. */
    void nextPage(const QStringList &list, QSignalMapper *mapper);

    /*! Shows the previous page of \a list; does nothing on the first one. */
    void prePage(const QStringList &list, QSignalMapper *mapper);

private:
    enum { PageSize = 5 };

    void showCandidate(int index, const QString &text, QSignalMapper *mapper);
    void showPage(int page, const QStringList &list, QSignalMapper *mapper);

    QLabel *m_pinyinLabel;
    ClickLabel *m_candidateLabels[PageSize];
    QToolButton *m_previousButton;
    QToolButton *m_nextButton;
    int m_currentPage;
    int m_pageCount;
};

#endif
