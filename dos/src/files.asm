; M: a small file manager.
;
;   M
;
; Lists the folder, enters folders and starts programs. The arrows, Page Up and Down, Home and End and
; a letter move; Enter enters a folder or starts a program and comes back after it; Backspace goes to
; the folder above; Esc leaves to DOS, in the folder shown. Programs are .COM, .EXE and .BAT files.
; Errorlevel: 0.

        cpu     186
        org     100h

kRows           equ 22                  ; of a column
kColumns        equ 4
kColumnWidth    equ 20
kPage           equ kRows * kColumns
kMostEntries    equ 2000                ; more are left out
kEntry          equ 14                  ; bytes of one: what it is, and its name ended by 0
kFolder         equ 0                   ; what it is: folders come first
kFile           equ 1
kStackBytes     equ 1024
kDta            equ 80h                 ; where DOS puts what it found
kTextSegment    equ 0B800h

; Attributes: paper above ink.
kPlain          equ 17h
kProgram        equ 1Fh
kFolderInk      equ 1Eh
kBar            equ 30h
kChosen         equ 70h

start:
        cld
        mov     sp, stack_top
        mov     bx, stack_top + 15
        shr     bx, 4
        mov     ah, 4Ah                 ; the rest of the memory is for the programs started
        int     21h
        call    ShowScreen
        mov     byte [came_from], 0
.folder:
        call    ReadFolder
        call    ChooseFormer
.draw:  call    Draw
        xor     ah, ah
        int     16h
        cmp     al, 1Bh
        je      .leave
        cmp     al, 0Dh
        je      .enter
        cmp     al, 8
        je      .up
        call    Move
        jmp     .draw
.enter: cmp     word [count], 0
        je      .draw
        call    ChosenEntry
        cmp     byte [si], kFolder
        jne     .program
        inc     si
        cmp     word [si], '..'
        je      .up
        mov     byte [came_from], 0
        mov     dx, si
        jmp     .change
.up:    call    NoteFolder
        mov     dx, text_above
.change:
        mov     ah, 3Bh
        int     21h
        jnc     .folder
        mov     dl, 7                   ; a name that this DOS can't take
        mov     ah, 2
        int     21h
        jmp     .folder
.program:
        inc     si
        call    IsProgram
        jne     .draw
        call    RunProgram
        jmp     .folder
.leave: mov     ax, 3
        int     10h
        mov     ax, 4C00h
        int     21h

; The folder -----------------------------------------------------------------------------------------

; Fills entries, order and count with the current folder, sorted.
ReadFolder:
        call    AskFolder
        mov     dx, kDta
        mov     ah, 1Ah                 ; a program may have moved it
        int     21h
        mov     word [count], 0
        mov     di, entries
        mov     dx, text_all
        mov     cx, 10h                 ; folders too, but nothing hidden
        mov     ah, 4Eh
.next:  int     21h
        jc      SortEntries
        cmp     word [kDta + 1Eh], '.'  ; itself
        je      .skip
        cmp     word [kDta + 1Eh], '..'
        jne     .take
        cmp     byte [path], 0          ; above the root there is nothing
        je      .skip
.take:  mov     bx, [count]
        cmp     bx, kMostEntries
        jae     SortEntries
        shl     bx, 1
        mov     [order + bx], di
        inc     word [count]
        call    TakeEntry
.skip:  mov     ah, 4Fh
        jmp     .next

; DI = where an entry goes; behind it at the end. The rest of its name is 0, so that entries can be
; compared as a whole.
TakeEntry:
        mov     al, kFolder
        test    byte [kDta + 15h], 10h
        jnz     .kind
        mov     al, kFile
.kind:  stosb
        mov     si, kDta + 1Eh
        mov     cx, kEntry - 1
.letter:
        lodsb
        test    al, al
        jz      .rest
        stosb
        loop    .letter
        dec     di
        inc     cx
.rest:  xor     al, al
        rep     stosb
        ret

; Sorts order by the entries it points to: a shell sort, so that hundreds of files take no time.
SortEntries:
        mov     bx, [count]
.gap:   shr     bx, 1
        jz      .done
        mov     cx, bx
.each:  cmp     cx, [count]
        jae     .gap
        mov     si, cx
        shl     si, 1
        mov     dx, [order + si]
        mov     di, cx
.shift: mov     ax, di
        sub     ax, bx
        jb      .put
        mov     si, ax
        shl     si, 1
        mov     si, [order + si]
        call    ComparedWith            ; with DX
        jbe     .put
        mov     bp, si
        mov     si, di
        shl     si, 1
        mov     [order + si], bp
        mov     di, ax
        jmp     .shift
.put:   mov     si, di
        shl     si, 1
        mov     [order + si], dx
        inc     cx
        jmp     .each
.done:  ret

; Flags as of the entry SI compared with the entry DX.
ComparedWith:
        push    cx
        push    si
        push    di
        mov     di, dx
        mov     cx, kEntry
        repe    cmpsb
        pop     di
        pop     si
        pop     cx
        ret

; The folder that we came up from is chosen, or else the first entry.
ChooseFormer:
        mov     word [chosen], 0
        mov     word [top], 0
        cmp     byte [came_from], 0
        je      .done
        xor     bx, bx
.next:  cmp     bx, [count]
        jae     .done
        mov     si, bx
        shl     si, 1
        mov     si, [order + si]
        inc     si
        mov     di, came_from
        call    SameNames
        je      .found
        inc     bx
        jmp     .next
.found: mov     [chosen], bx
.done:  mov     byte [came_from], 0
        ret

; Zero flag: the names SI and DI, each ended by 0, are the same.
SameNames:
        lodsb
        cmp     al, [di]
        jne     .done
        inc     di
        test    al, al
        jnz     SameNames
.done:  ret

; came_from = the last part of the current folder.
NoteFolder:
        call    AskFolder
        mov     si, path
        mov     di, came_from
.next:  lodsb
        stosb
        cmp     al, '\'
        jne     .same
        mov     di, came_from
.same:  test    al, al
        jnz     .next
        ret

; path = the current folder without its drive, ended by 0; it has no backslash in front.
AskFolder:
        mov     ah, 47h
        xor     dl, dl
        mov     si, path
        int     21h
        ret

; SI = the entry that is chosen.
ChosenEntry:
        mov     si, [chosen]
        shl     si, 1
        mov     si, [order + si]
        ret

; Zero flag: the name SI ends like a program. SI stays.
IsProgram:
        push    si
        push    di
.point: lodsb
        test    al, al
        jz      .no
        cmp     al, '.'
        jne     .point
        mov     di, program_ends
.next:  cmp     byte [di], 0
        je      .no
        mov     ax, [si]
        cmp     ax, [di]
        jne     .other
        mov     al, [si + 2]
        cmp     al, [di + 2]
        je      .done
.other: add     di, 3
        jmp     .next
.no:    or      al, 1                   ; not equal
.done:  pop     di
        pop     si
        ret

; Keys -----------------------------------------------------------------------------------------------

; AL, AH = letter and scan code of a key: another entry is chosen.
Move:
        test    al, al
        jz      .scan
        cmp     al, 0E0h                ; the grey keys
        je      .scan
        jmp     MoveToLetter
.scan:  mov     si, moves
.next:  cmp     byte [si], 0
        je      .done
        cmp     [si], ah
        je      .found
        add     si, 3
        jmp     .next
.found: mov     ax, [chosen]
        add     ax, [si + 1]
        jns     .low
        xor     ax, ax
.low:   mov     bx, [count]
        dec     bx
        jns     .some
        xor     bx, bx
.some:  cmp     ax, bx
        jbe     .put
        mov     ax, bx
.put:   mov     [chosen], ax
.done:  ret

; AL = a letter: the next entry whose name begins with it, once around.
MoveToLetter:
        cmp     al, 'a'
        jb      .upper
        cmp     al, 'z'
        ja      .upper
        sub     al, 20h
.upper: mov     cx, [count]
        jcxz    .done
        mov     bx, [chosen]
.next:  inc     bx
        cmp     bx, [count]
        jb      .look
        xor     bx, bx
.look:  mov     si, bx
        shl     si, 1
        mov     si, [order + si]
        cmp     al, [si + 1]
        je      .found
        loop    .next
.done:  ret
.found: mov     [chosen], bx
        ret

; Programs -------------------------------------------------------------------------------------------

; SI = a program's name. It runs under the command interpreter, which knows batch files too.
RunProgram:
        push    si
        mov     ax, 3
        int     10h
        pop     si
        mov     di, tail + 1
        mov     ax, ' /'
        stosw
        mov     ax, 'C '
        stosw
.name:  lodsb
        stosb
        test    al, al
        jnz     .name
        mov     byte [di - 1], 0Dh
        mov     ax, di
        sub     ax, tail + 2            ; without the byte itself and the line end
        mov     [tail], al
        mov     si, name_comspec
        call    FindVariable            ; ES:SI
        jc      .back
        mov     [block_tail + 2], cs
        mov     [block_fcb1 + 2], cs
        mov     [block_fcb2 + 2], cs
        mov     [stack_kept], sp
        mov     dx, si
        mov     bx, block
        push    es
        pop     ds
        push    cs
        pop     es
        mov     ax, 4B00h
        int     21h
        mov     ax, cs                  ; nothing else is kept
        cli
        mov     ss, ax
        mov     sp, [cs:stack_kept]
        sti
        mov     ds, ax
        mov     es, ax
        cld
        mov     dx, text_back
        mov     ah, 9
        int     21h
        xor     ah, ah
        int     16h
.back:  push    cs
        pop     es
        mov     byte [came_from], 0
        call    ChosenEntry             ; the list may be another one by now: by its name
        inc     si
        mov     di, came_from
.keep:  lodsb
        stosb
        test    al, al
        jnz     .keep

ShowScreen:
        mov     ax, 3
        int     10h
        mov     ah, 1
        mov     cx, 2000h               ; no cursor
        int     10h
        ret

; The screen -----------------------------------------------------------------------------------------

Draw:
        call    ScrollToChosen
        push    es
        mov     ax, kTextSegment
        mov     es, ax
        xor     di, di
        mov     ah, kBar
        mov     cx, 80
        call    Blanks
        mov     ah, kPlain
        mov     cx, 80 * 23
        call    Blanks
        mov     ah, kBar
        mov     cx, 80
        call    Blanks
        call    DrawPath
        mov     di, (24 * 80 + 1) * 2
        mov     si, text_keys
        mov     ah, kBar
        call    Print
        xor     dx, dx                  ; place on the screen
.next:  mov     bx, [top]
        add     bx, dx
        cmp     bx, [count]
        jae     .done
        cmp     dx, kPage
        jae     .done
        call    DrawEntry
        inc     dx
        jmp     .next
.done:  pop     es
        ret

; Moves top by whole columns until the chosen entry is on the screen.
ScrollToChosen:
        mov     ax, [chosen]
.up:    cmp     ax, [top]
        jae     .down
        sub     word [top], kRows
        jmp     .up
.down:  mov     bx, [top]
        add     bx, kPage
        cmp     ax, bx
        jb      .done
        add     word [top], kRows
        jmp     .down
.done:  ret

DrawPath:
        mov     ah, 19h
        int     21h
        add     al, 'A'
        mov     [drive], al
        call    AskFolder
        mov     di, 2
        mov     si, drive
        mov     ah, kBar
        call    Print
        mov     si, path
        jmp     Print

; BX = an entry's place in order, DX = its place on the screen.
DrawEntry:
        push    dx
        mov     ax, dx
        mov     cl, kRows
        div     cl                      ; AL = column, AH = row
        mov     ch, ah
        mov     cl, kColumnWidth
        mul     cl
        inc     ax
        mov     di, ax
        mov     al, ch
        inc     ax
        mov     cl, 80
        mul     cl
        add     di, ax
        shl     di, 1
        mov     si, bx
        shl     si, 1
        mov     si, [order + si]
        mov     ah, kFolderInk
        cmp     byte [si], kFolder
        lea     si, [si + 1]
        je      .ink
        mov     ah, kPlain
        push    ax
        call    IsProgram
        pop     ax
        jne     .ink
        mov     ah, kProgram
.ink:   cmp     bx, [chosen]
        jne     .print
        mov     ah, kChosen
        push    di
        mov     cx, kColumnWidth - 4
        call    Blanks
        pop     di
.print: call    Print
        pop     dx
        ret

; AH = attribute, CX blanks at ES:DI.
Blanks:
        mov     al, ' '
        rep     stosw
        ret

; SI = text ended by 0, ES:DI = where, AH = attribute. DI = behind it.
Print:
        lodsb
        test    al, al
        jz      .done
        stosw
        jmp     Print
.done:  ret

%include "command.inc"

text_all:       db "*.*", 0
text_above:     db "..", 0
text_keys:      db "Enter: open or run   Backspace: up   A-Z: find   Esc: leave", 0
text_back:      db 13, 10, "Press a key to come back.$"
name_comspec:   db "COMSPEC=", 0
program_ends:   db "COMEXEBAT", 0
drive:          db "C:\", 0

; Scan code, and how far it moves.
moves:          db 48h
                dw -1
                db 50h
                dw 1
                db 4Bh
                dw -kRows
                db 4Dh
                dw kRows
                db 49h
                dw -kPage
                db 51h
                dw kPage
                db 47h
                dw -kMostEntries
                db 4Fh
                dw kMostEntries
                db 0

; What DOS wants to know of a program to be started.
block:          dw 0                    ; our own environment
block_tail:     dw tail, 0
block_fcb1:     dw 5Ch, 0
block_fcb2:     dw 6Ch, 0

        section .bss
count:          resw 1
chosen:         resw 1
top:            resw 1                  ; the first entry on the screen
stack_kept:     resw 1
came_from:      resb 80
path:           resb 80
tail:           resb 40
order:          resw kMostEntries
entries:        resb kMostEntries * kEntry
                alignb 2
                resb kStackBytes
stack_top:
