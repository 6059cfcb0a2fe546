; Tell (Juneun daero jeokgi): a tool for DOS that writes what it was given.
;
;   TELL text           writes the text
;   TELL /COPY X:\FILE  does the same, and copies that file
;   TELL                shows what it is, waits for a line and writes that
;
; Its files lie in the folder of TELL.COM, whatever the current one is:
;   TELL.TXT    the current drive and folder, and on the next line what DOS put behind the program's
;               name, byte for byte and so with the blank before it, or the line that was typed
;   COPIED.TXT  the copy; none when the file can't be read
;   READY.TXT   written when the other files are; without text, when the screen stands
; The errorlevel is 0, 1 when a file can't be written, 2 when the one to be copied can't be read.

        cpu     386
        org     100h

kTailLength     equ 80h                 ; in the segment of the program
kTail           equ 81h
kLongestTail    equ 126

        cld
        push    cs
        pop     es
        mov     dx, FailDisk            ; a disk that fails must give an error, not a question
        mov     ax, 2524h
        int     21h
        call    FindHome
        mov     si, name_ready
        call    RemoveAtHome
        call    TakeTail
        jz      Ask
        call    WriteTold
        jc      NotWritten
        call    FindCopySwitch
        jc      .told
        call    CopyGiven
        jc      NotCopied
        cmp     ax, 0
        jne     NotWritten
.told:  call    TellReady
        mov     dx, text_told
        mov     al, 0

; Prints the text DX and ends with the errorlevel AL.
EndWith:
        push    ax
        mov     ah, 9
        int     21h
        pop     ax
        mov     ah, 4Ch
        int     21h

NotWritten:
        mov     dx, text_not_written
        mov     al, 1
        jmp     EndWith
NotCopied:
        call    TellReady
        mov     dx, text_not_copied
        mov     al, 2
        jmp     EndWith

Ask:    call    ShowScreen
        call    TellReady
        call    ReadLine
        pushf
        call    HideScreen
        popf
        mov     dx, text_left
        mov     al, 0
        jc      EndWith                 ; Esc
        call    WriteTold
        jc      NotWritten
        mov     dx, text_told
        mov     al, 0
        jmp     EndWith

FailDisk:
        mov     al, 3
        iret

; `home` = the path of this program up to its last backslash; it lies behind the environment.
FindHome:
        push    ds
        mov     ds, [2Ch]
        xor     si, si
.entry: lodsb
        test    al, al
        jnz     .entry
        cmp     byte [si], 0
        jne     .entry
        add     si, 3                   ; that 0, and a number
        mov     di, home
        mov     bx, di
.copy:  lodsb
        stosb
        cmp     al, '\'
        jne     .name
        mov     bx, di
.name:  test    al, al
        jnz     .copy
        pop     ds
        mov     [home_end], bx
        ret

; DX = the path of the file SI in the program's folder.
AtHome: mov     di, [home_end]
.copy:  lodsb
        stosb
        test    al, al
        jnz     .copy
        mov     dx, home
        ret

RemoveAtHome:
        call    AtHome
        mov     ah, 41h
        int     21h
        ret

; Makes the file SI in the program's folder anew. BX = the open file. Carry: not made.
CreateAtHome:
        call    AtHome
        xor     cx, cx
        mov     ah, 3Ch
        int     21h
        mov     bx, ax
        ret

; Writes CX bytes from DX to the file BX. Carry: not all of them.
WriteAll:
        mov     ah, 40h
        int     21h
        jc      .done
        cmp     ax, cx                  ; a full disk is no error for DOS; below sets the carry
.done:  ret

Close:  mov     ah, 3Eh
        int     21h
        ret

TellReady:
        mov     si, name_ready
        call    CreateAtHome
        jc      .done
        mov     dx, text_ready
        mov     cx, kReadyBytes
        call    WriteAll
        call    Close
.done:  ret

; `told` = what stands behind the program's name. Zero flag: nothing but blanks and tabs.
TakeTail:
        movzx   cx, byte [kTailLength]
        mov     [told_length], cx
        mov     si, kTail
        mov     di, told
        push    cx
        rep     movsb
        pop     cx
        mov     si, told
        call    SkipBlanks
        jcxz    .none
        or      al, 0FFh                ; zero flag clear
        ret
.none:  xor     ax, ax
        ret

; SI = the first of CX characters that is no blank; CX = how many are left.
SkipBlanks:
        jcxz    .done
        cmp     byte [si], ' '
        je      .blank
        cmp     byte [si], 9
        jne     .done
.blank: inc     si
        dec     cx
        jmp     SkipBlanks
.done:  ret

; TELL.TXT. Carry: not written.
WriteTold:
        mov     di, file_text
        mov     ah, 19h
        int     21h
        add     al, 'A'
        stosb
        mov     ax, ':\'
        stosw
        mov     si, di
        xor     dl, dl
        mov     ah, 47h                 ; the current folder, without its first backslash
        int     21h
.end:   cmp     byte [di], 0
        lea     di, [di + 1]
        jne     .end
        dec     di
        mov     ax, 0A0Dh
        stosw
        mov     si, told
        mov     cx, [told_length]
        rep     movsb
        stosw
        sub     di, file_text
        push    di
        mov     si, name_told
        call    CreateAtHome
        pop     cx
        jc      .done
        mov     dx, file_text
        call    WriteAll
        pushf
        call    Close
        popf
.done:  ret

; DX = the file name behind /COPY, without quotes around it. Carry: there is no /COPY.
FindCopySwitch:
        mov     si, told
        mov     cx, [told_length]
        call    SkipBlanks
        mov     di, copy_switch
.letter:
        cmp     byte [di], 0
        je      .switch
        jcxz    .none
        lodsb
        dec     cx
        cmp     al, 'a'
        jb      .upper
        and     al, 0DFh
.upper: scasb
        je      .letter
.none:  stc
        ret
.switch:
        push    cx
        call    SkipBlanks
        pop     ax
        jcxz    .none
        cmp     ax, cx
        je      .none                   ; no blank: a longer word
        mov     di, si
        add     di, cx
.trim:  cmp     byte [di - 1], ' '
        jne     .trimmed
        dec     di
        jmp     .trim
.trimmed:
        cmp     byte [si], '"'
        jne     .bare
        inc     si
        cmp     di, si
        jbe     .none
        cmp     byte [di - 1], '"'
        jne     .bare
        dec     di
.bare:  mov     byte [di], 0
        mov     dx, si
        clc
        ret

; Copies the file DX to COPIED.TXT. Carry: it can't be read; AX not 0: the copy can't be written.
CopyGiven:
        mov     ax, 3D00h
        int     21h
        jc      .gone
        mov     [given], ax
        mov     si, name_copied
        call    CreateAtHome
        mov     ax, 1
        jc      .written
        mov     [copied], bx
.part:  mov     bx, [given]
        mov     dx, buffer
        mov     cx, kBufferBytes
        mov     ah, 3Fh
        int     21h
        jc      .unread
        mov     cx, ax
        jcxz    .whole
        mov     bx, [copied]
        call    WriteAll
        jnc     .part
        mov     ax, 1
        jmp     .close
.whole: xor     ax, ax
.close: push    ax
        mov     bx, [copied]
        call    Close
        pop     ax
.written:
        push    ax
        mov     bx, [given]
        call    Close
        pop     ax
        clc
        ret
.unread:
        mov     bx, [copied]
        call    Close
        mov     bx, [given]
        call    Close
.gone:  mov     si, name_copied
        call    RemoveAtHome
        stc
        ret

%include "askscreen.asm"
%include "hangultext.asm"

name_told:      db "TELL.TXT", 0
name_copied:    db "COPIED.TXT", 0
name_ready:     db "READY.TXT", 0
text_ready:     db "READY", 13, 10
kReadyBytes     equ $ - text_ready
copy_switch:    db "/COPY", 0
text_told:      db "Written to TELL.TXT.", 13, 10, "$"
text_left:      db "Nothing was written.", 13, 10, "$"
text_not_written:
                db "A file in the program's folder can't be written.", 13, 10, "$"
text_not_copied:
                db "The file to be copied can't be read.", 13, 10, "$"

kBufferBytes    equ 8000h

section .bss
home:           resb 144
home_end:       resw 1
told:           resb 256
told_length:    resw 1
given:          resw 1
copied:         resw 1
file_text:      resb 512
buffer:         resb kBufferBytes
