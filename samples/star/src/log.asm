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
        mov     dx, name_log
        jmp     AppendFile

LogEnd:
        mov     ax, [level]
        mov     di, text_end_level
        call    FormatTwo
        mov     di, text_end_score
        call    FormatScore
        mov     si, text_log_end
        mov     cx, kLogEndBytes
        mov     dx, name_log
        jmp     AppendFile

name_scores:    db "SCORES.DAT", 0
name_log:       db "LAST.TXT", 0
text_log_night: db "LEVEL "
text_log_level: db "00 DONE "
text_log_score: db "000000", 13, 10
kLogNightBytes  equ $ - text_log_night
text_log_end:   db "GAME OVER LEVEL "
text_end_level: db "00 SCORE "
text_end_score: db "000000", 13, 10
kLogEndBytes    equ $ - text_log_end
