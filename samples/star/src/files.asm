; Files in the current directory. When the disk refuses, the game goes on without a word.

; Tells other programs, once, that the title can be seen.
TellReady:
        cmp     byte [told_ready], 0
        jne     .done
        mov     byte [told_ready], 1
        mov     dx, name_ready
        mov     si, text_ready
        mov     cx, kReadyBytes
        call    WriteFile
.done:  ret

; The log of one game: begun anew, a line for each night that was counted, one for the end.
BeginLog:
        mov     dx, name_log
        xor     cx, cx
        jmp     WriteFile

LogNight:
        mov     ax, [level]
        mov     di, text_log_level
        call    FormatTwo
        mov     di, text_log_score
        call    FormatScore
        mov     si, text_log_night
        mov     cx, kLogNightBytes
        jmp     AppendLog

LogEnd:
        mov     ax, [level]
        mov     di, text_end_level
        call    FormatTwo
        mov     di, text_end_score
        call    FormatScore
        mov     si, text_log_end
        mov     cx, kLogEndBytes
        ; fall through

; CX bytes from SI behind the log.
AppendLog:
        mov     dx, name_log
        mov     ax, 3D01h
        int     21h
        jc      .done
        mov     bx, ax
        push    cx
        xor     cx, cx
        xor     dx, dx
        mov     ax, 4202h               ; to the end
        int     21h
        pop     cx
        jmp     WriteAndClose
.done:  ret

; DX = name.
RemoveFile:
        mov     ah, 41h
        int     21h
        ret

; Makes the file DX anew, with CX bytes from SI; none is fine.
WriteFile:
        push    cx
        xor     cx, cx
        mov     ah, 3Ch
        int     21h
        pop     cx
        jc      .done
        mov     bx, ax
        jmp     WriteAndClose
.done:  ret

; BX = open file, CX bytes from SI.
WriteAndClose:
        jcxz    CloseFile
        mov     dx, si
        mov     ah, 40h
        int     21h
CloseFile:
        mov     ah, 3Eh
        int     21h
        ret

; Reads at most CX bytes of the file DX to DI. AX = how many there were. Carry: not read.
ReadFile:
        mov     ax, 3D00h
        int     21h
        jc      .done
        mov     bx, ax
        mov     dx, di
        mov     ah, 3Fh
        int     21h
        pushf
        push    ax
        call    CloseFile
        pop     ax
        popf
.done:  ret

name_ready:     db "READY.TXT", 0
name_scores:    db "SCORES.DAT", 0
name_log:       db "LAST.TXT", 0
text_ready:     db "READY", 13, 10
kReadyBytes     equ $ - text_ready
told_ready:     db 0
text_log_night: db "LEVEL "
text_log_level: db "00 DONE "
text_log_score: db "000000", 13, 10
kLogNightBytes  equ $ - text_log_night
text_log_end:   db "GAME OVER LEVEL "
text_end_level: db "00 SCORE "
text_end_score: db "000000", 13, 10
kLogEndBytes    equ $ - text_log_end
