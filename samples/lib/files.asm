; Files in the current directory. When the disk refuses, the program goes on without a word.

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

; CX bytes from SI behind what the file DX holds.
AppendFile:
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
text_ready:     db "READY", 13, 10
kReadyBytes     equ $ - text_ready
told_ready:     db 0
